#include "printsettings/DiscMedia.h"

using namespace Qt::StringLiterals;

QStringList constrainedDiscMedia()
{
    return {u"PrintableDisc"_s};
}

QStringList constrainedOtherMedia()
{
    return {u"Plain"_s,          u"PlainDuplex"_s,      u"Inkjet"_s,
            u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
            u"HagakiAtena"_s,    u"HagakiUra"_s};
}

QStringList shownDiscMedia()
{
    return {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s};
}

QStringList shownOtherMedia()
{
    return {u"Plain"_s,          u"Inkjet"_s,           u"Transparencies"_s,
            u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
            u"HagakiAtena"_s,    u"HagakiUra"_s};
}
