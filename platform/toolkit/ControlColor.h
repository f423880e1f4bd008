#pragma once

#include "platform/Export.h"

#include <QtCore/QMetaType>

class QWidget;

/// The two colours of a control's text. They are roles of the palette and not fixed colours, so
/// that they follow a change from light to dark.
enum class ControlColor {
    ControlText,
    DisabledControlText,
};
Q_DECLARE_METATYPE(ControlColor)

/// The ordinary and the dimmed text colour.
inline constexpr ControlColor controlTextColor()
{
    return ControlColor::ControlText;
}
inline constexpr ControlColor disabledControlTextColor()
{
    return ControlColor::DisabledControlText;
}

VELKARO_PLATFORM_EXPORT void setTextColor(QWidget *widget, ControlColor color);
VELKARO_PLATFORM_EXPORT ControlColor textColor(const QWidget *widget);
