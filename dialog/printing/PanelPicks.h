#pragma once

#include <QtCore/QString>

#include <optional>

class HostSession;

// Picks in the panels' controls for settings that are asked for by name, whichever panel has them.

/// Has every panel load its view and fill its controls, as it does when it is shown.
void prepareControls(HostSession &session);

/// Has every panel whose controls are filled save its values: it counts as one that was shown.
void savePreparedPanels(HostSession &session);

/// Where the keyword stands among those that the panels list, from 0 on; none in no list.
std::optional<int> placeInPanels(const HostSession &session, const QString &keyword);

/// The key of the slider of that name, as the view spells it; null without one.
QString sliderOf(const HostSession &session, const QString &name);

/// What the ticket has for the slider of the key; none when the plug-in does not tell where.
std::optional<double> valueOfSlider(const HostSession &session, const QString &slider);

/// Whether a person could pick the choice now, where a panel has a control for the keyword, whose
/// controls are filled (prepareControls()).
bool isOfferedInPanels(const HostSession &session, const QString &keyword, const QString &choice);

/// Picks the choice as a person would: in the keyword's control, where a panel has one, or by
/// moving its slider. False when neither is there. What the panel's rules and the host make of the
/// pick is not told.
bool pickInPanels(HostSession &session, const QString &keyword, const QString &choice);
