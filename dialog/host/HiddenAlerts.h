#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class Bundle;

/// An alert that the user has asked not to be shown again.
struct HiddenAlert
{
    QString key;      ///< in the plug-in's alert memory, and of its text in the string tables
    QString sentence; ///< in the user's language

    bool operator==(const HiddenAlert &) const = default;
};

// What a plug-in's alerts remember stands in the user defaults, in the domain that its bundle's
// identifier names: false for an alert that is not to be shown.

/// The alerts of the bundle's plug-in that are hidden, by their sentences.
QList<HiddenAlert> hiddenAlerts(const Bundle &bundle);

/// Has the alerts shown again. False when that cannot be written.
bool showAgain(const Bundle &bundle, const QList<HiddenAlert> &alerts);
