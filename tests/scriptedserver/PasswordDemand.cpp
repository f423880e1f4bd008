#include "tests/scriptedserver/PasswordDemand.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kRealm = "CUPS";

QByteArray md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

QByteArray header(const QByteArray &head, const QByteArray &name)
{
    for (const QByteArray &line : head.split('\n'))
        if (line.toLower().startsWith(name.toLower() + ':'))
            return line.mid(name.size() + 1).trimmed();
    return {};
}

/// A field of a digest: NAME="VALUE" or NAME=VALUE.
QByteArray field(const QByteArray &digest, const QString &name)
{
    const QRegularExpression form(uR"((?:^|[ ,])%1="?([^",]*))"_s.arg(name));
    return form.match(QString::fromLatin1(digest)).captured(1).toLatin1();
}

struct Demand
{
    PasswordScheme scheme;
    QByteArray user;
    QByteArray password;
    QByteArray nonce;

    QByteArray challenge() const
    {
        if (scheme == PasswordScheme::Basic)
            return QByteArray("Basic realm=\"") + kRealm + '"';
        return QByteArray("Digest realm=\"") + kRealm + "\", nonce=\"" + nonce +
               "\", algorithm=MD5, qop=\"auth\"";
    }

    bool isMet(const QByteArray &requestLine, const QByteArray &said) const
    {
        if (scheme == PasswordScheme::Basic)
            return said == "Basic " + (user + ':' + password).toBase64();
        const QByteArrayList words = requestLine.split(' ');
        const QByteArray answer = field(said, u"response"_s);
        const QByteArray secret = md5(user + ':' + kRealm + ':' + password);
        const QByteArray request = md5(words.value(0) + ':' + words.value(1));
        const QByteArray qop = field(said, u"qop"_s);
        const QByteArray count =
            qop.isEmpty() ? QByteArray()
                          : ':' + field(said, u"nc"_s) + ':' + field(said, u"cnonce"_s) + ':' + qop;
        return field(said, u"uri"_s) == words.value(1) && field(said, u"nonce"_s) == nonce &&
               answer == md5(secret + ':' + nonce + count + ':' + request);
    }
};

/// The head as it goes on: for this request alone, and without what was said here.
QByteArray forwarded(const QByteArray &head)
{
    QByteArray lines;
    for (const QByteArray &line : head.split('\n'))
        if (const QByteArray name = line.left(line.indexOf(':')).toLower();
            name != "authorization" && name != "connection" && !line.trimmed().isEmpty())
            lines += line.trimmed() + "\r\n";
    return lines + "Connection: close\r\n\r\n";
}

} // namespace

Script passwordDemand(PasswordScheme scheme, const QByteArray &user, const QByteArray &password,
                      int port)
{
    const Step check = [=](ServedConnection &connection) {
        if (!connection.readHeaders())
            return false;
        const Demand demand{scheme, user, password, "n0nce-" + QByteArray::number(port)};
        const QByteArray said = header(connection.head(), "Authorization");
        if (demand.isMet(connection.requestLine(), said))
            return connection.relay(port, forwarded(connection.head()));
        return (connection.expectsContinue() || connection.readBody(kWhole)) &&
               connection.write(
                   "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: " + demand.challenge() +
                   "\r\nConnection: close\r\nContent-Length: 0\r\n\r\n") &&
               false;
    };
    return {{"connect", {check}}};
}
