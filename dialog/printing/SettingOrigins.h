#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QString>

/// What settings are set to, by their names: keywords of the PPD, names of options. What is not
/// there says nothing, as by default.
using SettingValues = QMap<QString, QString>;

/// Why a setting has its value.
struct SettingOrigin
{
    enum class Kind {
        Printer,     ///< it is the printer's default
        Queue,       ///< saved with the queue
        Preset,      ///< `preset`
        LastUsed,    ///< what the user printed with last
        CommandLine, ///< asked for by name
        You,         ///< picked
        Because,     ///< `cause` was picked, and rules changed it in turn
        Rules,       ///< it goes with the others
    };

    Kind kind = Kind::Printer;
    QString preset;
    PPDMark cause;

    bool operator==(const SettingOrigin &) const = default;
};

/// Why all settings have their values. Nothing is known of the rules: what is told are the values
/// before and after each event, and what somebody picked in it.
class SettingOrigins
{
public:
    SettingOrigin originOf(const QString &name) const { return m_origins.value(name); }

    /// The settings have just been opened, from these that were saved or asked for by name.
    void begin(const SettingValues &defaults, const SettingValues &now,
               const QHash<QString, SettingOrigin> &named);

    /// Settings were asked for by name; what else has become otherwise goes with them.
    void takeNamed(const SettingValues &before, const SettingValues &now,
                   const QHash<QString, SettingOrigin> &named);

    /// Somebody has picked a value of the setting of the name; null: of whatever is otherwise now.
    void takePick(const QString &name, const SettingValues &before, const SettingValues &now);

    /// Nobody has: what is otherwise follows from what was picked last.
    void takeRules(const SettingValues &before, const SettingValues &now);

    bool operator==(const SettingOrigins &) const = default;

private:
    QHash<QString, SettingOrigin> m_origins; ///< those of Kind::Printer need not be there
    PPDMark m_lastPick;                      ///< a null keyword: none yet
};
