#pragma once

#include "platform/Export.h"

class QFormLayout;
class QLabel;
class QPoint;
class QString;
class QWidget;

// Labels and tool tips guess whether their text is rich text, and rich text opens the files that it
// names. So every label that is made in code is made here, and every text reaches a label by here.
// Line breaks stay; displayText() is for texts from outside, and withoutMnemonic() for those of
// them that name a control (a label with a buddy makes a mnemonic of an ampersand).

/// A label that shows its text as it stands; owned by the parent (null: by the layout that it is
/// put in).
VELKARO_PLATFORM_EXPORT QLabel *newPlainLabel(const QString &text, QWidget *parent = nullptr);

/// Shows the text in the label as it stands, also in a label of a view.
VELKARO_PLATFORM_EXPORT void setLabelText(QLabel *label, const QString &text);

/// Adds a row with a plain label, whose buddy the field is.
VELKARO_PLATFORM_EXPORT void addLabelledRow(QFormLayout *form, const QString &text, QWidget *field);

/// The markup that a tool tip shows as the text; null for an empty text.
VELKARO_PLATFORM_EXPORT QString toolTipMarkup(const QString &text);

/// Shows a tool tip that says the text as it stands, at a point of the screen; none for an empty
/// one.
VELKARO_PLATFORM_EXPORT void showToolTip(const QPoint &at, const QString &text, QWidget *owner);
