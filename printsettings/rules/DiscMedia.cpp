#include "printsettings/rules/DiscMedia.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList &constrainedDiscs()
{
    static const QStringList media = {u"PrintableDisc"_s};
    return media;
}

const QStringList &constrainedOthers()
{
    static const QStringList media = {u"Plain"_s,          u"PlainDuplex"_s,      u"Inkjet"_s,
                                      u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
                                      u"HagakiAtena"_s,    u"HagakiUra"_s};
    return media;
}

const QStringList &shownDiscs()
{
    static const QStringList media = {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s};
    return media;
}

const QStringList &shownOthers()
{
    static const QStringList media = {
        u"Plain"_s,          u"Inkjet"_s,           u"Transparencies"_s,
        u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
        u"HagakiAtena"_s,    u"HagakiUra"_s};
    return media;
}

} // namespace

const std::vector<MediaChange> &constrainedMedia(bool discPaper)
{
    static const std::vector<MediaChange> onDisc = {
        {constrainedDiscs(), true, true},
        {constrainedOthers(), false, false},
    };
    static const std::vector<MediaChange> onOthers = {
        {constrainedDiscs(), false, false},
        {constrainedOthers(), true, true},
    };
    return discPaper ? onDisc : onOthers;
}

const std::vector<MediaChange> &shownMedia(bool discPaper, bool borderlessPaper)
{
    static const QStringList transparencies = {u"Transparencies"_s};
    static const std::vector<MediaChange> onDisc = {
        {transparencies, false, false},
        {shownDiscs(), true, false},
        {shownOthers(), false, false},
    };
    static const std::vector<MediaChange> withoutBorders = {
        {transparencies, false, false},
        {shownDiscs(), false, false},
    };
    static const std::vector<MediaChange> withBorders = {
        {transparencies, true, false},
        {shownDiscs(), false, false},
    };
    if (discPaper)
        return onDisc;
    return borderlessPaper ? withoutBorders : withBorders;
}
