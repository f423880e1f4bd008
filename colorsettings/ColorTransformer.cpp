#include "colorsettings/ColorTransformer.h"

#include "panel/TicketValue.h"
#include "platform/toolkit/ControlColor.h"

QMetaType ColorTransformer::transformedValueClass() const
{
    return QMetaType::fromType<ControlColor>();
}

QVariant ColorTransformer::transformedValue(const QVariant &value) const
{
    const bool on = ticketBoolean(value);
    return QVariant::fromValue(on ? controlTextColor() : disabledControlTextColor());
}

QVariant ColorTransformer::reverseTransformedValue(const QVariant &) const
{
    return {};
}
