#pragma once

#include "platform/Export.h"

#include <QtGui/QAccessible>

/// Tells assistive technology that widgets of the class, by its meta-object's name, have the role:
/// the toolkit knows only its own classes. Once for a class, before the first widget of it is
/// shown.
VELKARO_PLATFORM_EXPORT void giveAccessibleRole(const char *className, QAccessible::Role role);

/// Tells it at once, and out loud, that the widget has something new to say by its name.
VELKARO_PLATFORM_EXPORT void announce(QWidget *widget);
