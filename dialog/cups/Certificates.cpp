#include "dialog/cups/Certificates.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSet>

#include <cstring>
#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

struct CredentialsDeleter
{
    void operator()(cups_array_t *credentials) const { httpFreeCredentials(credentials); }
};
using CredentialsHandle = std::unique_ptr<cups_array_t, CredentialsDeleter>;

std::mutex s_mutex; // guards what follows
QSet<QString> s_trusted;

bool isToBeTrusted(const QString &server)
{
    const std::lock_guard lock(s_mutex);
    return s_trusted.remove(server);
}

/// libcups' own folder for a user's, whoever runs the program.
QString folder()
{
    return QDir::homePath() + u"/.cups/ssl"_s;
}

CredentialsHandle shownBy(http_t *http)
{
    cups_array_t *shown = nullptr;
    httpCopyCredentials(http, &shown);
    return CredentialsHandle(shown);
}

CredentialsHandle keptOf(const QByteArray &server)
{
    cups_array_t *kept = nullptr;
    httpLoadCredentials(QFile::encodeName(folder()).constData(), &kept, server.constData());
    return CredentialsHandle(kept);
}

/// One that cannot be kept is as good as one that is seen for the first time every time.
void keep(cups_array_t *shown, const QByteArray &server)
{
    QDir().mkpath(folder());
    httpSaveCredentials(QFile::encodeName(folder()).constData(), shown, server.constData());
}

bool areEqual(cups_array_t *one, cups_array_t *other)
{
    const auto *first = static_cast<http_credential_t *>(cupsArrayFirst(one));
    const auto *second = static_cast<http_credential_t *>(cupsArrayFirst(other));
    return first && second && first->datalen == second->datalen &&
           std::memcmp(first->data, second->data, first->datalen) == 0;
}

} // namespace

bool isKnownServer(http_t *http, const QString &server)
{
    if (!httpIsEncrypted(http))
        return true;
    const QByteArray name = server.toUtf8();
    const CredentialsHandle shown = shownBy(http);
    const CredentialsHandle kept = keptOf(name);
    if (kept && !areEqual(shown.get(), kept.get()) && !isToBeTrusted(server))
        return false;
    if (!kept || !areEqual(shown.get(), kept.get()))
        keep(shown.get(), name);
    return true;
}

QString certificatePath(const QString &server)
{
    QString name = server;
    for (QChar &one : name)
        if (!one.isLetterOrNumber() && one != u'-' && one != u'.')
            one = u'_';
    return folder() + u'/' + name + u".crt"_s;
}

void trustNextCertificate(const QString &server)
{
    const std::lock_guard lock(s_mutex);
    s_trusted.insert(server);
}
