#include "printsettings/MediaQuality.h"

#include "printsettings/PaperNames.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QStringList media;
    QStringList qualities;
};

const Row *rowOf(const std::vector<Row> &table, const QString &mediaType)
{
    const auto row = std::find_if(table.begin(), table.end(), [&](const Row &candidate) {
        return candidate.media.contains(mediaType);
    });
    return row == table.end() ? nullptr : &*row;
}

const std::vector<Row> &discTable()
{
    static const std::vector<Row> table = {
        {{u"PrintableDisc"_s}, {u"DiscNormal"_s, u"DiscSlow"_s}},
        {{u"GlossyPrintableDisc"_s}, {u"DiscNormal"_s}},
    };
    return table;
}

// Plain paper stands apart: its qualities depend on two-sided printing.
const std::vector<Row> &coatedTable()
{
    static const std::vector<Row> table = {
        {{u"Inkjet"_s, u"VelkaroQM41Matte"_s}, {u"Normal"_s, u"Photo"_s, u"Best"_s}},
        {{u"VelkaroGlossy"_s, u"VelkaroGlossyR"_s, u"Glossy"_s, u"HagakiUra"_s},
         {u"Fast"_s, u"Photo"_s, u"Best"_s}},
        {{u"Transparencies"_s}, {u"Normal"_s}},
    };
    return table;
}

QStringList plainQualities(bool duplex)
{
    if (duplex)
        return {u"PlainFast"_s, u"PlainNormal"_s, u"Best"_s};
    return {u"PlainFast"_s, u"PlainNormal"_s, u"High"_s, u"Best"_s};
}

} // namespace

AllowedQualities allowedQualities(const QString &mediaType, bool discPaper, bool duplex)
{
    if (discPaper) {
        if (const Row *row = rowOf(discTable(), mediaType))
            return {row->qualities, {}};
        return {{u"DiscNormal"_s, u"DiscSlow"_s}, u"PrintableDisc"_s};
    }
    if (isKindOfPlainPaper(mediaType))
        return {plainQualities(duplex), {}};
    if (const Row *row = rowOf(coatedTable(), mediaType))
        return {row->qualities, {}};
    return {plainQualities(duplex), u"Plain"_s};
}

QString defaultQuality(const QString &mediaType, const QString &paperName)
{
    // Borderless A3 starts with "Best" also while two-sided printing is on.
    if (isKindOfPlainPaper(mediaType))
        return isBorderelessForPaperSize(paperName, u"A3"_s) ? u"Best"_s : u"PlainNormal"_s;
    if (mediaType == "Transparencies"_L1)
        return u"Normal"_s;
    if (mediaType == "PrintableDisc"_L1)
        return u"DiscNormal"_s;
    // "GlossyPrintableDisc" gets "Photo" too, which it does not allow. The driver prints glossy
    // discs by that value while the pop-up keeps showing "DiscNormal": do not mend it.
    return u"Photo"_s;
}
