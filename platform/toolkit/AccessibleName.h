#pragma once

#include "platform/Export.h"

class QString;
class QWidget;

/// What assistive technology calls the control, in plain text. A label that is the control's buddy
/// tells it too, but makes a mnemonic of an ampersand in its text, and must be its sibling.
VELKARO_PLATFORM_EXPORT void giveAccessibleName(QWidget *control, const QString &name);
