#pragma once

#include <QtCore/QString>

#include <optional>

class HostSession;
class PDEPanelControls;

// What a person does in a panel's controls, through the controls' own user signals. Each answers
// one sentence about why it cannot be done (nothing has changed then), null when it was done.

/// Picks the item of the choice in a pop-up button or a matrix.
QString pickChoice(const PDEPanelControls &panel, const QString &control, const QString &choice);

/// Ticks or clears a check box. The box sends its action also when it stands so already.
QString pickChecked(const PDEPanelControls &panel, const QString &control, bool checked);

/// Sets the disclosure button of the view; nothing happens when it is set so already.
QString foldSection(const PDEPanelControls &panel, bool open);

/// Moves the slider that is bound to the keyword, whichever panel has it, within the range that the
/// plug-in's sliders have.
QString moveSlider(const HostSession &session, const QString &keyword, double value);

/// Presses the revert button, whichever panel has it.
QString pressRevert(const HostSession &session);

/// Makes the size watches of the views fire.
QString fireSizeWatch(const HostSession &session);
