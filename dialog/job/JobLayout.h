#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <span>

/// How the pages of a job are laid out, and how the server is to go about it: what servers and
/// their filters do for every printer. Each value is the one that is sent; null: nothing is said of
/// it, and the server has its way.
struct JobLayout
{
    QString pagesPerSheet;
    QString pageOrder; ///< on a sheet with several pages
    QString pageBorder;
    QString pageSet; ///< all, even or odd pages
    QString outputOrder;
    QString collation; ///< of several copies
    QString booklet;
    QString hold; ///< a keyword, or a time of day in UTC, "HH:MM"
    QString priority;
    QString coverPages;   ///< before and after the job, "standard,none"
    QString notification; ///< the URI of who is told of the job's end

    bool operator==(const JobLayout &) const = default;
};

/// One of the choices of a setting.
struct LayoutChoice
{
    QLatin1String value;
    const char *text; ///< for people, to be translated ("JobLayout")
};

/// One of the settings. Its name is the option's, as `lp -o` and lpoptions take it.
struct LayoutSetting
{
    QLatin1String option;
    QString JobLayout::*value;
    const char *title;                     ///< for people, to be translated ("JobLayout")
    std::span<const LayoutChoice> choices; ///< the usual one first
    /// Of values that are no choices: the value as it is sent, null for what is none; and the
    /// value for people. Null: there are no such values, or they are for people as they are.
    QString (*normalized)(const QString &value) = nullptr;
    QString (*text)(const QString &value) = nullptr;
    QLatin1String form = {}; ///< how values that are no choices are typed
};

/// All settings, in the order in which people read them.
std::span<const LayoutSetting> layoutSettings();

/// The setting of the option; null when it is none of a layout.
const LayoutSetting *layoutSetting(const QString &option);

/// The value as it is sent; null when it is no value for the setting.
QString normalizedLayoutValue(const LayoutSetting &setting, const QString &value);

/// The form of the values that are no choices, and those that are, as they are typed.
QStringList layoutValues(const LayoutSetting &setting);

/// The value for people.
QString layoutText(const LayoutSetting &setting, const QString &value);

/// The title of the setting for people.
QString layoutTitle(const LayoutSetting &setting);

/// A cover page for people, by the server's name of it.
QString coverText(const QString &name);

/// The options of the layout, those that say something.
QList<JobOption> layoutOptions(const JobLayout &layout);

/// A time of day ("HH:MM" or "HH:MM:SS") of this machine's time zone as UTC, and the other way
/// round, as of today.
QString utcTime(const QString &local);
QString localTime(const QString &utc);
