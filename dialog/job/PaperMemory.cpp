#include "dialog/job/PaperMemory.h"

#include "platform/foundation/SettingsPath.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostRecent = 5;
constexpr qsizetype kLongestName = 60; // characters
constexpr auto kRecent = "Recent"_L1;
constexpr auto kSizes = "Sizes"_L1;

QString memoryFile()
{
    return settingsPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                        u"/velkaro-print/papers.ini"_s);
}

/// Any text as a key: a slash would make it a key in a group.
QString keyOf(QLatin1String group, const QString &text)
{
    return group + u'/' +
           QString::fromLatin1(text.toUtf8().toBase64(QByteArray::Base64UrlEncoding));
}

QString textOfKey(const QString &key)
{
    return QString::fromUtf8(QByteArray::fromBase64(key.toLatin1(), QByteArray::Base64UrlEncoding));
}

} // namespace

QStringList recentPapers(const QString &printer)
{
    const QSettings memory(memoryFile(), QSettings::IniFormat);
    return memory.value(keyOf(kRecent, printer)).toStringList().mid(0, kMostRecent);
}

void rememberPaper(const QString &printer, const QString &choice)
{
    QStringList papers = recentPapers(printer);
    papers.removeAll(choice);
    papers.prepend(choice);
    QSettings memory(memoryFile(), QSettings::IniFormat);
    memory.setValue(keyOf(kRecent, printer), papers.mid(0, kMostRecent));
}

QList<OwnSize> ownSizes()
{
    QSettings memory(memoryFile(), QSettings::IniFormat);
    memory.beginGroup(kSizes);
    QList<OwnSize> sizes;
    for (const QString &key : memory.childKeys()) {
        const QStringList lengths = memory.value(key).toStringList();
        const OwnSize size{textOfKey(key), lengths.value(0).toDouble(),
                           lengths.value(1).toDouble()};
        if (!size.name.isEmpty() && size.name == ownSizeName(size.name) && size.width > 0 &&
            size.height > 0)
            sizes += size;
    }
    std::ranges::sort(sizes, [](const OwnSize &one, const OwnSize &other) {
        return QString::localeAwareCompare(one.name, other.name) < 0;
    });
    return sizes;
}

void keepOwnSize(const OwnSize &size)
{
    QSettings memory(memoryFile(), QSettings::IniFormat);
    memory.setValue(keyOf(kSizes, size.name), QStringList{QString::number(size.width, 'g', 10),
                                                          QString::number(size.height, 'g', 10)});
}

void removeOwnSize(const QString &name)
{
    QSettings memory(memoryFile(), QSettings::IniFormat);
    memory.remove(keyOf(kSizes, name));
}

QString ownSizeName(const QString &typed)
{
    return typed.simplified().left(kLongestName).trimmed();
}
