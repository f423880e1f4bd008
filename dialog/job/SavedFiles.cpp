#include "dialog/job/SavedFiles.h"

#include "dialog/files/PathBytes.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {

Fault unreadable(const QString &path, const QString &reason)
{
    return {FaultKind::Output, QCoreApplication::translate(
                                   "LpoptionsFile", "The saved settings in %1 cannot be read: %2.")
                                   .arg(shownPath(path), reason)};
}

Fault tooLarge(const QString &path)
{
    return unreadable(path, QCoreApplication::translate("LpoptionsFile", "it has more than %1 MB")
                                .arg(kMostLpoptionsMegabytes));
}

/// A pipe would keep whoever opens it waiting.
Result<> checkKind(const QFileInfo &file)
{
    if (!file.isFile())
        return unreadable(file.filePath(),
                          QCoreApplication::translate("LpoptionsFile", "it is no ordinary file"));
    return {};
}

bool isThere(const QFileInfo &file)
{
    return file.exists() || file.isSymLink();
}

} // namespace

QStringList lpoptionsFiles()
{
    const QByteArray folder = qgetenv("CUPS_SERVERROOT");
    QStringList files{QString::fromLocal8Bit(folder.isEmpty() ? QByteArray("/etc/cups") : folder) +
                      QStringLiteral("/lpoptions")};
    const QByteArray home = qgetenv("HOME");
    if (!home.isEmpty())
        files += QString::fromLocal8Bit(home) + QStringLiteral("/.cups/lpoptions");
    return files;
}

Result<QByteArray> lpoptionsText(const QString &path)
{
    const QFileInfo info(path);
    if (!isThere(info))
        return QByteArray();
    if (const Result<> checked = checkKind(info); !checked)
        return checked.fault();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(path, file.errorString());
    const QByteArray text = file.read(kLargestLpoptions + 1);
    if (file.error() != QFile::NoError)
        return unreadable(path, file.errorString());
    return text.size() > kLargestLpoptions ? Result<QByteArray>(tooLarge(path)) : text;
}

QStringList notesOnLpoptions()
{
    QStringList notes;
    for (const QString &path : lpoptionsFiles())
        if (const Result<QByteArray> text = lpoptionsText(path); !text)
            notes += text.sentence();
    return notes;
}
