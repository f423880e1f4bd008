#include "dialog/cups/DocumentFile.h"

#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace {

QString fault(const char *text, const QString &path, const QString &reason = QString())
{
    const QString sentence = QCoreApplication::translate("DocumentFile", text);
    return reason.isNull() ? sentence.arg(displayText(path))
                           : sentence.arg(displayText(path), reason);
}

QString faultOf(const QFileInfo &info, const QString &path)
{
    if (!info.exists())
        return fault(QT_TRANSLATE_NOOP("DocumentFile", "The document %1 does not exist."), path);
    if (info.isDir())
        return fault(QT_TRANSLATE_NOOP("DocumentFile", "%1 is a folder, not a document."), path);
    if (info.isFile() && info.size() == 0)
        return fault(QT_TRANSLATE_NOOP("DocumentFile", "The document %1 is empty."), path);
    return {};
}

} // namespace

OpenedDocuments openDocuments(const QStringList &paths)
{
    OpenedDocuments opened;
    for (const QString &path : paths) {
        opened.error = faultOf(QFileInfo(path), path);
        auto file = std::make_unique<QFile>(path);
        if (opened.error.isNull() && !file->open(QIODevice::ReadOnly))
            opened.error =
                fault(QT_TRANSLATE_NOOP("DocumentFile", "The document %1 cannot be read: %2."),
                      path, file->errorString());
        if (!opened.error.isNull()) {
            opened.files.clear();
            return opened;
        }
        opened.files.push_back(std::move(file));
    }
    return opened;
}

QString jobTitle(const QStringList &paths)
{
    return paths.isEmpty() ? QString() : displayText(QFileInfo(paths.constFirst()).fileName());
}
