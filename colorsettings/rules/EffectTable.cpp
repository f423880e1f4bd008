#include "colorsettings/rules/EffectTable.h"

QStringList effectKeywords()
{
    QStringList keywords;
    for (const Effect &effect : kEffects)
        keywords << effect.keyword;
    return keywords;
}

QString effectTicketKey(const QString &keyword)
{
    for (const Effect &effect : kEffects) {
        if (keyword == effect.keyword)
            return effect.ticketKey;
    }
    return {};
}
