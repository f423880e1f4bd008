#pragma once

#include "platform/Export.h"

class QString;
class QWidget;

/// What assistive technology calls the control, in plain text. A label that is the control's buddy
/// tells it too, but makes a mnemonic of an ampersand in its text, and must be its sibling.
VELKARO_PLATFORM_EXPORT void giveAccessibleName(QWidget *control, const QString &name);

/// What assistive technology reads of the widget as a whole, beside its name: several lines of
/// plain text.
VELKARO_PLATFORM_EXPORT void giveAccessibleText(QWidget *widget, const QString &text);

/// The name of the button that folds a section, which differs from that of what is in the section:
/// `pattern` has %1 in place of the section's title.
VELKARO_PLATFORM_EXPORT void nameDisclosure(QWidget *button, const QString &pattern,
                                            const QString &title);
