#include "dialog/host/PPDFile.h"

#include "dialog/host/PPDCompleteness.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {

// The largest PPDs of real printers have a few hundred kilobytes.
constexpr qint64 kLargestPPD = 16LL * 1024 * 1024;

// All at once: a path may itself have a "%2" in it.
template <typename... Rest>
QString sentence(const char *text, const QString &path, const Rest &...rest)
{
    return QCoreApplication::translate("PPDFile", text).arg(path, rest...);
}

QString reasonNotToRead(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return sentence(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 does not exist."), path);
    if (!file.isFile())
        return sentence(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a PPD file."), path);
    if (!QFile(path).open(QIODevice::ReadOnly))
        return sentence(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be read."), path);
    if (file.size() > kLargestPPD)
        return sentence(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 is too large."), path);
    return {};
}

QString parserError(const QString &path)
{
    int line = 0;
    const QString reason = QString::fromUtf8(ppdErrorString(ppdLastError(&line)));
    if (line == 0)
        return sentence(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a PPD file (%2)."), path, reason);
    return sentence(QT_TRANSLATE_NOOP("PPDFile", "%1 is not a usable PPD file (line %2: %3)."),
                    path, QString::number(line), reason);
}

// A cut within the comments at the beginning leaves a PPD that says nothing.
bool saysNothing(const ppd_file_t &ppd)
{
    return ppd.num_groups == 0 && !ppd.modelname && !ppd.nickname && !ppd.manufacturer;
}

bool isIncomplete(const QString &path, const ppd_file_t &ppd)
{
    QFile file(path);
    return saysNothing(ppd) || (file.open(QIODevice::ReadOnly) && isCutOff(file.readAll()));
}

} // namespace

OpenedPPD openPPD(const QString &path, PPDTexts texts)
{
    const QString reason = reasonNotToRead(path);
    if (!reason.isNull())
        return {nullptr, reason};
    PPDHandle ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    if (!ppd)
        return {nullptr, parserError(path)};
    if (isIncomplete(path, *ppd))
        return {nullptr,
                sentence(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 is incomplete: it ends too "
                                                      "early. Get it again."),
                         path)};
    if (texts == PPDTexts::InUserLanguage)
        ppdLocalize(ppd.get());
    ppdMarkDefaults(ppd.get());
    return {std::move(ppd), QString()};
}
