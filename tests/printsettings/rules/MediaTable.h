#pragma once

#include <QtCore/QString>

#include <vector>

/// One medium and what may be printed on it, written out for every state. Qualities are separated
/// by spaces.
struct MediumRow
{
    QString medium;
    QString oneSided;
    QString twoSided;
    QString onDisc;
    QString replacement;       ///< of the medium without a disc; null: it stays
    QString replacementOnDisc; ///< likewise on a disc
    QString defaultQuality;
    QString defaultOnBorderlessA3;
};

/// Every medium that the rules know, one that nobody knows, and none at all.
inline const std::vector<MediumRow> &mediaTable()
{
    using namespace Qt::StringLiterals;
    const QString plainOne = u"PlainFast PlainNormal High Best"_s;
    const QString plainTwo = u"PlainFast PlainNormal Best"_s;
    const QString inkjet = u"Normal Photo Best"_s;
    const QString glossy = u"Fast Photo Best"_s;
    const QString disc = u"DiscNormal DiscSlow"_s;
    const QString plain = u"Plain"_s;
    const QString toDisc = u"PrintableDisc"_s;
    static const std::vector<MediumRow> table = {
        {u"Plain"_s, plainOne, plainTwo, disc, {}, toDisc, u"PlainNormal"_s, u"Best"_s},
        {u"PlainDuplex"_s, plainOne, plainTwo, disc, {}, toDisc, u"PlainNormal"_s, u"Best"_s},
        {u"HagakiAtena"_s, plainOne, plainTwo, disc, {}, toDisc, u"PlainNormal"_s, u"Best"_s},
        {u"Inkjet"_s, inkjet, inkjet, disc, {}, toDisc, u"Photo"_s, u"Photo"_s},
        {u"VelkaroQM41Matte"_s, inkjet, inkjet, disc, {}, toDisc, u"Photo"_s, u"Photo"_s},
        {u"VelkaroGlossy"_s, glossy, glossy, disc, {}, toDisc, u"Photo"_s, u"Photo"_s},
        {u"VelkaroGlossyR"_s, glossy, glossy, disc, {}, toDisc, u"Photo"_s, u"Photo"_s},
        {u"Glossy"_s, glossy, glossy, disc, {}, toDisc, u"Photo"_s, u"Photo"_s},
        {u"HagakiUra"_s, glossy, glossy, disc, {}, toDisc, u"Photo"_s, u"Photo"_s},
        {u"Transparencies"_s, u"Normal"_s, u"Normal"_s, disc, {}, toDisc, u"Normal"_s, u"Normal"_s},
        {u"PrintableDisc"_s, plainOne, plainTwo, disc, plain, {}, u"DiscNormal"_s, u"DiscNormal"_s},
        {u"GlossyPrintableDisc"_s,
         plainOne,
         plainTwo,
         u"DiscNormal"_s,
         plain,
         {},
         u"Photo"_s,
         u"Photo"_s},
        {u"glossy"_s, plainOne, plainTwo, disc, plain, toDisc, u"Photo"_s, u"Photo"_s},
        {QString(), plainOne, plainTwo, disc, plain, toDisc, u"Photo"_s, u"Photo"_s},
    };
    return table;
}
