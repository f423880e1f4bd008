#include "colorsettings/EffectVal.h"

#include "panel/TicketValue.h"

EffectValRecord EffectVal;

void resetEffectVal()
{
    EffectVal = {-1, 0};
}

bool isHandledChange(int tag, double value)
{
    return EffectVal.code == tag &&
           static_cast<float>(value) == static_cast<float>(EffectVal.value);
}

void recordChange(int tag, double value)
{
    EffectVal = {tag, ticketInteger(value)};
}
