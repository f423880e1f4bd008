#include "dialog/printing/FollowPreference.h"

#include "platform/foundation/SettingsPath.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kFollows = "follow"_L1;

QString preferencesFile()
{
    return settingsPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                        u"/velkaro-print/preferences.ini"_s);
}

} // namespace

bool followsJobs()
{
    return QSettings(preferencesFile(), QSettings::IniFormat).value(kFollows, true).toBool();
}

void setFollowsJobs(bool follows)
{
    QSettings(preferencesFile(), QSettings::IniFormat).setValue(kFollows, follows);
}
