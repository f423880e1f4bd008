#include "dialog/window/KeptPasswords.h"

#include "dialog/keyring/Keyring.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kKeyringTimeout{10};

} // namespace

// Lines: the user, the domain, and the password, which may have any character.

QByteArray entryOf(const Credentials &credentials)
{
    return credentials.user.toUtf8() + '\n' + credentials.domain.toUtf8() + '\n' +
           credentials.password.text();
}

std::optional<Credentials> credentialsOf(QByteArray entry)
{
    const qsizetype user = entry.indexOf('\n');
    const qsizetype domain = user < 0 ? -1 : entry.indexOf('\n', user + 1);
    if (domain < 0)
        return std::nullopt;
    Credentials kept{.user = QString::fromUtf8(entry.first(user)),
                     .domain = QString::fromUtf8(entry.mid(user + 1, domain - user - 1)),
                     .wasKept = true};
    QByteArray password = entry.mid(domain + 1);
    kept.password = Secret::takeFrom(password);
    Secret::takeFrom(entry); // its memory is cleared
    return kept;
}

void findKept(const PasswordQuestion &question,
              std::function<void(bool hasKeyring, std::optional<Credentials> kept)> then)
{
    Keyring *keyring = desktopKeyring();
    if (!keyring) {
        then(false, std::nullopt);
        return;
    }
    const auto once = std::make_shared<decltype(then)>(std::move(then));
    const auto tell = [once](bool hasKeyring, const std::optional<Credentials> &kept) {
        if (const auto told = std::exchange(*once, nullptr))
            told(hasKeyring, kept);
    };
    keyring->read(placeOf(question), [tell](Keyring::Found found, QByteArray entry) {
        tell(found != Keyring::Found::NoKeyring,
             found == Keyring::Found::Entry ? credentialsOf(std::move(entry)) : std::nullopt);
    });
    QTimer::singleShot(kKeyringTimeout, QCoreApplication::instance(),
                       [tell] { tell(false, std::nullopt); });
}

void keepInKeyring(const PasswordQuestion &question, const Credentials &right)
{
    if (Keyring *keyring = desktopKeyring())
        keyring->write(placeOf(question), entryOf(right));
}
