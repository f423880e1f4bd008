#include "colorsettings/EffectRange.h"

#include "panel/TicketValue.h"

long long effectValueFromTicket(const QVariant &value)
{
    const long long number = ticketInteger(value);
    return number >= kEffectMinimum && number <= kEffectMaximum ? number : 0;
}

QString effectTextForTicket(const QVariant &value)
{
    return QString::number(effectValueFromTicket(value));
}
