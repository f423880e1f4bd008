#include "printsettings/rules/TwoSidedMedium.h"

using namespace Qt::StringLiterals;

bool isTwoSided(const DuplexFacts &facts)
{
    return facts.plainDuplexOffered && facts.duplexOffered &&
           (facts.marked.isNull() || facts.marked != facts.defaultChoice);
}

bool followsTwoSided(const QString &mediaType)
{
    return mediaType == "PlainDuplex"_L1 || mediaType == "Plain"_L1;
}

SavedValues savedByShownPanel(const QString &shownMedium, bool duplex)
{
    if (shownMedium != "Plain"_L1)
        return {};
    return {duplex ? u"PlainDuplex"_s : u"Plain"_s, {}};
}

SavedValues savedByUnshownPanel(const QString &pendingMedium, bool duplex)
{
    if (duplex)
        return {u"PlainDuplex"_s, u"PlainNormal"_s};
    if (pendingMedium == "PlainDuplex"_L1)
        return {u"Plain"_s, {}};
    return {};
}
