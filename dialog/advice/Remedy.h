#pragma once

#include "dialog/printing/SettingState.h"

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

/// A way to a choice that is not to be had as the settings are: other settings to change first.
struct Remedy
{
    /// What to change, in this order, before the choice is picked.
    QList<SettingChange> changes;
    /// What becomes otherwise besides, when all is done. The choice itself is not among it.
    QList<SettingChange> beside;

    bool operator==(const Remedy &) const = default;
};

/// What can be said of a choice that somebody would like to have.
struct Advice
{
    enum class Outcome {
        Available,  ///< it is to be had as the settings are
        Possible,   ///< it is to be had with one of the remedies
        Impossible, ///< no setting of the printer gives it
        Unknown,    ///< too many conditions to find out
    };

    QString keyword;
    QString choice;
    Outcome outcome = Outcome::Unknown;
    /// The smallest first, and of those the one that changes least besides; none but where the
    /// outcome is Possible.
    QList<Remedy> remedies;
    /// All of it in the printer's words, plain text; what the bundle has to say of the choice comes
    /// first.
    QString sentence;

    bool operator==(const Advice &) const = default;
};

/// What programs read of it: keyword, choice, available, possible, changes (those of the first
/// remedy), sentence.
QJsonObject adviceReport(const Advice &advice);

/// The whole of it as one process tells another, and back; none for what is none of it.
QJsonObject adviceMessage(const Advice &advice);
std::optional<Advice> adviceOfMessage(const QJsonObject &message);
