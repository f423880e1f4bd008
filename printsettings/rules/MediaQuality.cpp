#include "printsettings/rules/MediaQuality.h"

#include "printsettings/rules/PaperNames.h"

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

constexpr int kBorderlessLetterModelNumber = 12;

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

const QStringList &plainQualities(bool duplex)
{
    static const QStringList twoSided = {u"PlainFast"_s, u"PlainNormal"_s, u"Best"_s};
    static const QStringList oneSided = {u"PlainFast"_s, u"PlainNormal"_s, u"High"_s, u"Best"_s};
    return duplex ? twoSided : oneSided;
}

} // namespace

QStringList knownMedia()
{
    QStringList media = plainPaperMedia();
    for (const std::vector<Row> &table : {coatedTable(), discTable()}) {
        for (const Row &row : table)
            media << row.media;
    }
    return media;
}

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

QStringList unavailableWithoutBorders(const QString &paperName)
{
    static const QStringList onA3 = {u"PlainFast"_s, u"PlainNormal"_s, u"High"_s};
    static const QStringList onOthers = {u"PlainFast"_s};
    return isBorderelessForPaperSize(paperName, u"A3"_s) ? onA3 : onOthers;
}

bool isLeftFromDisc(const QString &quality, const QString &mediaType, bool discPaper)
{
    const bool discQuality = quality == "DiscNormal"_L1 || quality == "DiscSlow"_L1;
    return !discPaper && discQuality && mediaType != "PrintableDisc"_L1;
}

bool resetsQuality(const QString &paperName, int modelNumber)
{
    return modelNumber == kBorderlessLetterModelNumber &&
           isBorderelessForPaperSize(paperName, u"Letter"_s);
}
