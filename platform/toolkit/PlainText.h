#pragma once

#include "platform/Export.h"

#include <QtCore/QString>

class QAbstractButton;

/// `text` as one line that shows what it says: control characters become spaces, and the invisible
/// characters that turn the direction of writing around are left out. For texts from outside.
VELKARO_PLATFORM_EXPORT QString displayText(const QString &text);

/// `text` for a widget that would make a mnemonic of an ampersand.
VELKARO_PLATFORM_EXPORT QString withoutMnemonic(const QString &text);

/// What a text shows that a widget makes a mnemonic of, `&Open` or `開く(&O)`: without that.
VELKARO_PLATFORM_EXPORT QString titleOfMnemonic(const QString &text);

/// The title of a button, ampersands as they are. A mnemonic that the button has for the same title
/// stays, and is no part of what it is called.
VELKARO_PLATFORM_EXPORT void setButtonTitle(QAbstractButton *button, const QString &title);
VELKARO_PLATFORM_EXPORT QString buttonTitle(const QAbstractButton *button);
