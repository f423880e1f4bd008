// The module that is loaded for the keyring: its library is not part of the program.
#include "dialog/keyring/Keyring.h"

#include <qt6keychain/keychain.h>

namespace {

constexpr auto kService = "Velkaro Print";

class DesktopKeyring : public Keyring
{
public:
    void read(const QString &key, Then then) override
    {
        auto *job = new QKeychain::ReadPasswordJob(QString::fromLatin1(kService)); // deletes itself
        job->setKey(key);
        QObject::connect(job, &QKeychain::Job::finished, job, [job, then = std::move(then)] {
            if (job->error() == QKeychain::NoError)
                then(Found::Entry, job->binaryData());
            else
                then(job->error() == QKeychain::EntryNotFound ? Found::Nothing : Found::NoKeyring,
                     {});
        });
        job->start();
    }

    void write(const QString &key, const QByteArray &entry) override
    {
        auto *job = new QKeychain::WritePasswordJob(QString::fromLatin1(kService)); // likewise
        job->setKey(key);
        job->setBinaryData(entry);
        job->start();
    }
};

} // namespace

extern "C" Q_DECL_EXPORT Keyring *velkaroKeyring()
{
    static DesktopKeyring keyring;
    return &keyring;
}
