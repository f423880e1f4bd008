#include "tests/golden/RandomOpen.h"

#include <QtCore/QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kVendorKey = "com.velkaro.print.PrintSettings."_L1;

using Member = QJsonValue (*)(Random &random, const PPDFacts &facts);

QJsonValue dialogType(Random &random, const PPDFacts &)
{
    static const QStringList types{u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_s,
                                   u"bdb091f4-e57f-11d3-b5cc-0050e4603277"_s, u"other"_s, u""_s};
    return random.pick(types);
}

QJsonValue marks(Random &random, const PPDFacts &facts)
{
    QJsonObject marks;
    for (int count = random.between(1, 4); count > 0; --count) {
        const RandomChoice mark = randomChoice(random, facts);
        marks[mark.keyword] = random.chance(92) ? mark.choice : u"Nowhere"_s;
    }
    return marks;
}

QJsonValue ticket(Random &random, const PPDFacts &)
{
    QJsonObject ticket;
    for (int count = random.between(1, 5); count > 0; --count) {
        const TicketEntry entry = randomTicketEntry(random);
        if (!entry.value.isNull())
            ticket[entry.key] = entry.value;
    }
    return ticket;
}

QJsonValue languages(Random &random, const PPDFacts &)
{
    static const QList<QStringList> lists{{u"en"_s},
                                          {u"ja"_s},
                                          {u"ja"_s},
                                          {u"ja"_s},
                                          {u"ja-JP"_s},
                                          {u"ja"_s, u"en"_s},
                                          {u"en"_s, u"ja"_s},
                                          {u"fr"_s, u"ja"_s},
                                          {u"fr"_s},
                                          {u"en-GB"_s},
                                          {},
                                          {u""_s},
                                          {u"JA"_s},
                                          {u"ja_JP"_s},
                                          {u"zh-Hans"_s, u"xx"_s, u"en"_s}};
    return QJsonArray::fromStringList(random.pick(lists));
}

QJsonValue strings(Random &random, const PPDFacts &)
{
    return random.chance(80) ? u"keys"_s : u"bundle"_s;
}

QJsonValue alertMemory(Random &random, const PPDFacts &)
{
    static const QStringList keys{u"Best Alert"_s, u"Best Alert"_s, u"DiscPrint Alert"_s,
                                  u"Envelope Alert Title"_s, u"Other Alert"_s};
    QJsonObject memory;
    for (int count = random.between(1, 3); count > 0; --count)
        memory[random.pick(keys)] = random.chance(50);
    return memory;
}

QJsonValue refused(Random &random, const PPDFacts &facts)
{
    QJsonArray refused;
    for (int count = random.between(1, 4); count > 0; --count) {
        const RandomChoice choice = randomChoice(random, facts);
        refused += random.chance(40) ? choice.keyword : choice.keyword + u'=' + choice.choice;
    }
    return refused;
}

QJsonValue lacking(Random &random, const PPDFacts &)
{
    static const QStringList operations{u"printSettings"_s, u"pageFormat"_s,
                                        u"panelViewDidResize"_s};
    QJsonArray lacking{random.pick(operations)};
    if (random.chance(30))
        lacking += random.pick(operations);
    if (random.chance(10))
        lacking += u"willChangePPDOptionKeyValue"_s;
    return lacking;
}

QJsonValue info(Random &random, const PPDFacts &)
{
    static const QList<QJsonObject> infos{
        {{u"PMPPDKeysSupported"_s,
          QJsonArray{u"VKMediaType"_s, u"VKResolution"_s, u"VKNothing"_s}}},
        {{u"PMPPDKeysSupported"_s, QJsonArray{u"VKMonoColor"_s, u"VKMirror"_s, u"VKJpeg"_s,
                                              u"VKInputSlot"_s, u"VKMediaType"_s}}},
        {{u"PMPPDKeysSupported"_s, QJsonArray()}},
        {{u"PMPPDKeysSupported"_s, QJsonValue()}},
        {{u"PMPPDKeysSupported"_s, u"VKMediaType"_s}},
        {{u"PMPPDKeysSupportedColor"_s, QJsonArray{u"VKColorMatching"_s}}},
        {{u"PMPPDKeysSupportedColor"_s,
          QJsonArray{u"VKColorEnhancement"_s, u"VKHalfTonePattern"_s}}},
        {{u"PMPPDKeysSupportedColor"_s, QJsonValue()}},
        {{u"CFBundleIdentifier"_s, u"com.velkaro.other"_s}},
        {{u"CFBundleName"_s, u"Other"_s}},
        {{u"CFBundleHelpBookName"_s, u"No Such Book"_s}},
        {{u"CFBundleHelpBookName"_s, QJsonValue()}},
        {{u"CFBundleExecutable"_s, u"nothing.so"_s}},
    };
    return random.pick(infos);
}

QJsonValue windowHeight(Random &random, const PPDFacts &)
{
    return random.chance(30) ? QJsonValue() : QJsonValue(random.between(0, 24) * 50);
}

QJsonValue noRestore(Random &, const PPDFacts &)
{
    return false;
}

QJsonValue paper(Random &random, const PPDFacts &facts)
{
    return randomPaper(random, facts);
}

struct MemberRule
{
    QString name;
    int percent; ///< how many opens have it
    Member make;
};

const QList<MemberRule> kMembers{
    {u"type"_s, 4, dialogType},      {u"marks"_s, 40, marks},
    {u"ticket"_s, 35, ticket},       {u"paper"_s, 25, paper},
    {u"languages"_s, 55, languages}, {u"strings"_s, 15, strings},
    {u"alerts"_s, 25, alertMemory},  {u"refuse"_s, 22, refused},
    {u"lacks"_s, 12, lacking},       {u"info"_s, 10, info},
    {u"restore"_s, 10, noRestore},   {u"windowHeight"_s, 22, windowHeight},
};

QJsonValue numberText(Random &random)
{
    static const QStringList texts{u"0"_s, u"5"_s,   u"-20"_s, u"20"_s, u"21"_s,         u"-300"_s,
                                   u"x"_s, u""_s,    u"3.5"_s, u"+7"_s, u" 4"_s,         u"1e1"_s,
                                   u"-"_s, u"007"_s, u"12"_s,  u"-8"_s, u"99999999999"_s};
    return random.pick(texts);
}

QJsonValue anyValue(Random &random)
{
    switch (random.below(8)) {
    case 0:
        return random.chance(50);
    case 1:
        return random.between(-25, 25);
    case 2:
        return random.between(-200, 200) / 8.0;
    case 3:
        return 1e12;
    case 4:
        return QJsonValue();
    default:
        return numberText(random);
    }
}

QJsonValue oneOf(Random &random, const QStringList &texts)
{
    return random.chance(85) ? QJsonValue(random.pick(texts)) : anyValue(random);
}

QJsonObject ownPaper(Random &random)
{
    static const QStringList names{u"Letter"_s,   u"Custom.1"_s,   u"Custom"_s, u"A4_B"_s,
                                   u"My Paper"_s, u"EnvMine"_s,    u"A4"_s,     u"Custom_B"_s,
                                   u"12cm"_s,     u"EnvChou4.2"_s, u""_s};
    static const QList<int> lengths{0, 100, 182, 283, 360, 420, 595, 612, 700, 842, 1200, 2000};
    return {{u"name"_s, random.pick(names)},
            {u"ppdName"_s, QJsonValue()},
            {u"width"_s, random.pick(lengths)},
            {u"height"_s, random.pick(lengths)}};
}

QJsonObject strangePaper(Random &random)
{
    static const QStringList names{u"EnvChou3"_s,           u"EnvChou4"_s,   u"EnvYou4"_s,
                                   u"120x120mm"_s,          u"VkDisc12cm"_s, u"VkA4_B"_s,
                                   u"A4.Fullbleed"_s,       u"Nowhere"_s,    u"Env10"_s,
                                   u"Postcard.Fullbleed"_s, u"A3"_s};
    const QString name = random.pick(names);
    return {{u"name"_s, name},
            {u"ppdName"_s, random.chance(70) ? QJsonValue(name) : u"A4"_s},
            {u"width"_s, random.between(100, 900)},
            {u"height"_s, random.between(100, 1300) + 0.5}};
}

/// The papers that rules and alerts know come more often than one in fifty.
PPDFacts::Paper listedPaper(Random &random, const PPDFacts &facts)
{
    QList<PPDFacts::Paper> special;
    for (const PPDFacts::Paper &paper : facts.papers)
        if (paper.name.contains(u"Fullbleed"_s) || paper.name.contains(u"EnvChou"_s) ||
            paper.name.contains(u"12"_s) || paper.name.contains(u"ost"_s))
            special += paper;
    return random.pick(random.chance(50) && !special.isEmpty() ? special : facts.papers);
}

} // namespace

QJsonObject randomPaper(Random &random, const PPDFacts &facts)
{
    if (random.chance(12) || facts.papers.isEmpty())
        return strangePaper(random);
    if (random.chance(15))
        return ownPaper(random);
    const PPDFacts::Paper paper = listedPaper(random, facts);
    return {{u"name"_s, paper.name},
            {u"ppdName"_s, paper.name},
            {u"width"_s, paper.width},
            {u"height"_s, paper.height}};
}

TicketEntry randomTicketEntry(Random &random)
{
    static const QStringList effects{u"Brightness"_s, u"Contrast"_s, u"Red"_s, u"Green"_s,
                                     u"Blue"_s};
    static const QStringList folds{u"advancedItem"_s, u"advancedcolorItem"_s};
    switch (random.below(8)) {
    case 0:
        return {u"VKMonoColor"_s, oneOf(random, {u"Mono"_s, u"Color"_s})};
    case 1:
        return {u"VKHalfTonePattern"_s, oneOf(random, {u"Dither"_s, u"Diffusion"_s})};
    case 2:
        return {u"VKColorMatching"_s, oneOf(random, {u"Natural"_s, u"Vivid"_s, u"None"_s})};
    case 3:
        return {u"AP_ColorMatchingMode"_s,
                oneOf(random, {u"AP_ApplicationColorMatching"_s, u"AP_VendorColorMatching"_s})};
    case 4:
        return {u"com.apple.print.PageToPaperMappingMediaName"_s,
                oneOf(random, {u"A4"_s, u"EnvChou3"_s, u"A4.Fullbleed"_s, u"120x120mm"_s})};
    case 5:
        return {kVendorKey + random.pick(folds),
                random.chance(70) ? QJsonValue(random.chance(50)) : anyValue(random)};
    case 6:
        return {u"other.key"_s, anyValue(random)};
    default:
        return {kVendorKey + "T2T_"_L1 + random.pick(effects),
                random.chance(50) ? numberText(random) : anyValue(random)};
    }
}

RandomChoice randomChoice(Random &random, const PPDFacts &facts)
{
    QStringList keywords;
    for (const QString &keyword : facts.options.keys())
        if (keyword.startsWith("VK"_L1) || keyword == "Duplex"_L1 || keyword == "PageSize"_L1 ||
            keyword == "MirrorPrint"_L1)
            keywords += keyword;
    static const QStringList weighty{u"VKMediaType"_s, u"VKResolution"_s, u"VKMonoColor"_s,
                                     u"Duplex"_s, u"VKOutput"_s};
    const QString favourite = random.pick(weighty);
    const bool known = facts.options.contains(favourite) && random.chance(50);
    const QString keyword = known ? favourite : random.pick(keywords);
    return {keyword, random.pick(facts.options[keyword])};
}

QJsonObject randomOpen(Random &random, const PreparedPPD &ppd)
{
    QJsonObject open{{u"do"_s, u"open"_s}, {u"ppd"_s, ppd.fileName}};
    for (const MemberRule &rule : kMembers)
        if (random.chance(rule.percent))
            open[rule.name] = rule.make(random, ppd.facts);
    return open;
}
