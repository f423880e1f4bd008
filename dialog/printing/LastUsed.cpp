#include "dialog/printing/LastUsed.h"

#include "dialog/job/JobOptions.h"
#include "platform/foundation/SettingsPath.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kRemembers = "remember"_L1;
constexpr auto kPrinters = "printers"_L1;

QString configurationFile()
{
    return settingsPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                        u"/velkaro-print/last-used.ini"_s);
}

/// A name without slashes, which part groups.
QString keyOfPrinter(const QString &server, const QString &queue)
{
    const auto encoded = [](const QString &text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    return kPrinters + u'/' + encoded(queue.toLower()) + u'@' + encoded(server.toLower());
}

} // namespace

bool remembersLastUsed()
{
    return QSettings(configurationFile(), QSettings::IniFormat).value(kRemembers, true).toBool();
}

void setRemembersLastUsed(bool remembers)
{
    QSettings settings(configurationFile(), QSettings::IniFormat);
    settings.setValue(kRemembers, remembers);
    if (!remembers)
        settings.remove(kPrinters);
}

QList<JobOption> lastUsedSettings(const QString &server, const QString &queue)
{
    const QSettings settings(configurationFile(), QSettings::IniFormat);
    QList<JobOption> options;
    for (const QString &line : settings.value(keyOfPrinter(server, queue)).toStringList()) {
        const qsizetype equals = line.indexOf(u'=');
        const JobOption option{line.left(equals), line.mid(equals + 1)};
        if (equals > 0 && isSendable(option)) // the file may have been changed
            options += option;
    }
    return options;
}

void rememberLastUsed(const QString &server, const QString &queue, const QList<JobOption> &options)
{
    if (queue.isEmpty() || !remembersLastUsed())
        return;
    QStringList lines;
    for (const JobOption &option : options)
        lines += option.name + u'=' + option.value;
    QSettings settings(configurationFile(), QSettings::IniFormat);
    settings.setValue(keyOfPrinter(server, queue), lines);
}
