#include "printsettings/rules/PaperNames.h"

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

using Names = std::initializer_list<QLatin1String>;

bool isListed(const QString &name, Names names)
{
    return !name.isNull() && std::find(names.begin(), names.end(), name) != names.end();
}

QString withoutVariant(const QString &paperName)
{
    const qsizetype point = paperName.lastIndexOf(u'.');
    return point < 0 ? paperName : paperName.left(point);
}

} // namespace

QStringList plainPaperMedia()
{
    return {u"Plain"_s, u"PlainDuplex"_s, u"HagakiAtena"_s};
}

bool isKindOfPlainPaper(const QString &mediaType)
{
    static const QStringList media = plainPaperMedia();
    return !mediaType.isNull() && media.contains(mediaType);
}

bool isBorderelessForPaperSize(const QString &paperName, const QString &baseSize)
{
    if (paperName.isNull() || baseSize.isNull())
        return false;
    return paperName.startsWith(baseSize + ".Fullbleed"_L1) ||
           paperName.startsWith("Vk"_L1 + baseSize + "_B"_L1);
}

bool isKindOfPostcardPaperSize(const QString &paperName)
{
    return isListed(paperName, {"Postcard"_L1, "Postcard.Fullbleed"_L1, "VkHagaki_B"_L1,
                                "DoublePostcardRotated"_L1});
}

bool allowTray2PaperSize(const QString &paperName)
{
    // No paper comes to equal the last four without its variant. They stand in the printer's own
    // table, and this list is held against it: leave them.
    return isListed(withoutVariant(paperName),
                    {"A3"_L1, "B4"_L1, "Tabloid"_L1, "A4"_L1, "Letter"_L1, "Legal"_L1, "VkA3"_L1,
                     "VkA3_S"_L1, "VkLedger_S"_L1, "VkB4_S"_L1, "A3.LongGrain"_L1,
                     "A3.ShortGrain"_L1, "Tabloid.ShortGrain"_L1, "B4.ShortGrain"_L1});
}

bool isKindOfLandscapePaper(const QString &paperName)
{
    return isListed(withoutVariant(paperName), {"A4"_L1, "Letter"_L1, "Executive"_L1, "B5"_L1});
}

bool isKindOfPortraitPaper(const QString &paperName)
{
    return isListed(paperName, {"A3"_L1,
                                "A3.Fullbleed"_L1,
                                "B4"_L1,
                                "Tabloid"_L1,
                                "Tabloid.Fullbleed"_L1,
                                "Legal"_L1,
                                "Folio"_L1,
                                "A5"_L1,
                                "A6"_L1,
                                "A6.Fullbleed"_L1,
                                "4x6"_L1,
                                "4x6.Fullbleed"_L1,
                                "5x8"_L1,
                                "5x8.Fullbleed"_L1,
                                "3.5x5"_L1,
                                "3.5x5.Fullbleed"_L1,
                                "5x7"_L1,
                                "5x7.Fullbleed"_L1,
                                "Postcard"_L1,
                                "Postcard.Fullbleed"_L1,
                                "DoublePostcardRotated"_L1,
                                "EnvC5"_L1,
                                "EnvDL"_L1,
                                "Env10"_L1,
                                "EnvMonarch"_L1,
                                "EnvC6"_L1,
                                "EnvYou4"_L1});
}

bool isKindOfManualFeedPaper(const QString &paperName)
{
    // Empty on purpose: these models have no manual feed, and the callers ask all the same.
    return isListed(withoutVariant(paperName), {});
}

bool isKindOfJPEnvelope(const QString &paperName)
{
    return isListed(withoutVariant(paperName), {"EnvChou3"_L1, "EnvChou4"_L1});
}

bool isBusinessModel(const QString &modelName)
{
    // The answer is the wrong way round and stays so: callers of this interface count on it.
    return !modelName.isNull() &&
           !isListed(modelName,
                     {"Velkaro PX-T310W"_L1, "Velkaro PX-T310N"_L1, "Velkaro PX-T320N"_L1,
                      "Velkaro MX-T330W"_L1, "Velkaro MX-T340W"_L1, "Velkaro MX-T350W"_L1,
                      "Velkaro MX-T360W"_L1, "Velkaro MX-T365W"_L1, "Velkaro MX-T370N"_L1});
}

bool isDefaultMediaTypeForVividColorMode(const QString &mediaType)
{
    return isListed(mediaType, {"Plain"_L1, "HagakiAtena"_L1});
}
