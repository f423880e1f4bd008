#include "printsettings/DiscMedia.h"

using namespace Qt::StringLiterals;

QStringList constrainedDiscMedia()
{
    static const QStringList media = {u"PrintableDisc"_s};
    return media;
}

QStringList constrainedOtherMedia()
{
    static const QStringList media = {u"Plain"_s,          u"PlainDuplex"_s,      u"Inkjet"_s,
                                      u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
                                      u"HagakiAtena"_s,    u"HagakiUra"_s};
    return media;
}

QStringList shownDiscMedia()
{
    static const QStringList media = {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s};
    return media;
}

QStringList shownOtherMedia()
{
    static const QStringList media = {
        u"Plain"_s,          u"Inkjet"_s,           u"Transparencies"_s,
        u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
        u"HagakiAtena"_s,    u"HagakiUra"_s};
    return media;
}
