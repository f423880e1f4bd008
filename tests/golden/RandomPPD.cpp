#include "tests/golden/RandomPPD.h"

#include "tests/golden/PPDRecipe.h"

#include <QtCore/QJsonArray>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kUnchanged = 25; // per cent
constexpr int kMostEdits = 5;

/// Those that the panels look at; edits of others would change little.
const QStringList kKeywords{
    u"VKMediaType"_s,
    u"VKMediaType"_s,
    u"VKMediaType"_s,
    u"VKResolution"_s,
    u"VKResolution"_s,
    u"VKMonoColor"_s,
    u"VKMonoColor"_s,
    u"VKColorPaperThick"_s,
    u"VKInputSlot"_s,
    u"VKMirror"_s,
    u"MirrorPrint"_s,
    u"VKReverse"_s,
    u"VKJpeg"_s,
    u"VKDuplexMode"_s,
    u"VKBiDir"_s,
    u"VKSlowDrying"_s,
    u"Duplex"_s,
    u"VKVertLineAlignA3B4Ledger"_s,
    u"VKOutput"_s,
    u"PageSize"_s,
    u"VKVertLineAlignDedicated"_s,
    u"VKColorMatching"_s,
    u"VKColorMatching"_s,
    u"VKHalfTonePattern"_s,
    u"VKBrightness"_s,
    u"VKRed"_s,
    u"VKColorEnhancement"_s,
};

const QStringList kModels{
    u"Velkaro MX-J710DW"_s,
    u"Velkaro MX-J610DW"_s,
    u"Velkaro MX-J609DW"_s,
    u"Velkaro MX-J4510N"_s,
    u"Velkaro PX-330C"_s,
    u"Velkaro PX-370C"_s,
    u"Velkaro PX-380C"_s,
    u"Velkaro PX-400"_s,
    u"Velkaro PX-T310W"_s,
    u"Velkaro PX-T320N"_s,
    u"Velkaro"_s,
    u"Printer <b>Five</b>"_s,
    u"A-B-C"_s,
    u"Velkaro MX-J6"_s,
    u"Velkaro PX-3"_s,
};

const QStringList kTitles{u"Other"_s, u"Plain Paper"_s,
                          u"A very long text of a choice that says "
                          u"everything there is to say of it"_s,
                          u"<b>Bold</b>"_s, u"Black & White"_s};

/// What an edit is made with: a keyword of the PPD, and a choice of it.
struct Place
{
    QString keyword;
    QString choice;
};

using Members = QJsonObject (*)(Random &random, const Place &place, const Place &other);

QJsonObject keywordOnly(Random &, const Place &place, const Place &)
{
    return {{u"keyword"_s, place.keyword}};
}

QJsonObject keywordAndChoice(Random &, const Place &place, const Place &)
{
    return {{u"keyword"_s, place.keyword}, {u"choice"_s, place.choice}};
}

QJsonObject otherDefault(Random &random, const Place &place, const Place &)
{
    return {{u"keyword"_s, place.keyword},
            {u"choice"_s, random.chance(75) ? place.choice : u"Nowhere"_s}};
}

QString inOtherCase(Random &random, const QString &name)
{
    return random.chance(50) ? name.toLower() : name.toUpper();
}

QJsonObject otherKeyword(Random &random, const Place &place, const Place &)
{
    const QString to =
        random.chance(70) ? inOtherCase(random, place.keyword) : u"Other"_s + place.keyword;
    return {{u"keyword"_s, place.keyword}, {u"to"_s, to}};
}

QJsonObject otherChoice(Random &random, const Place &place, const Place &)
{
    const QString to =
        random.chance(60) ? inOtherCase(random, place.choice) : u"Other"_s + place.choice;
    return {{u"keyword"_s, place.keyword}, {u"choice"_s, place.choice}, {u"to"_s, to}};
}

QJsonObject otherTitle(Random &random, const Place &place, const Place &)
{
    return {{u"keyword"_s, place.keyword},
            {u"choice"_s, place.choice},
            {u"to"_s, random.pick(kTitles)}};
}

QJsonObject otherType(Random &random, const Place &place, const Place &)
{
    return {{u"keyword"_s, place.keyword},
            {u"to"_s, random.chance(50) ? u"PickMany"_s : u"Boolean"_s}};
}

QJsonObject oneMore(Random &random, const Place &place, const Place &)
{
    static const QStringList choices{u"Extra"_s, u"PlainDuplex"_s, u"Tray2"_s, u"MPTray"_s,
                                     u"Best"_s,  u"FAX"_s,         u"ON"_s};
    return {{u"keyword"_s, place.keyword}, {u"choice"_s, random.pick(choices)}};
}

QJsonObject otherModel(Random &random, const Place &, const Place &)
{
    return {{u"to"_s, random.pick(kModels)}};
}

QJsonObject otherAttribute(Random &random, const Place &, const Place &)
{
    struct Row
    {
        QString keyword;
        QStringList values;
    };
    static const QList<Row> rows{
        {u"APSupportsCustomColorMatching"_s, {u"true"_s, u"false"_s, u"True"_s, u""_s}},
        {u"cupsModelNumber"_s, {u"0"_s, u"10"_s, u"11"_s, u"999"_s}},
    };
    const Row row = random.pick(rows);
    const QJsonValue to = random.chance(30) ? QJsonValue() : random.pick(row.values);
    return {{u"keyword"_s, row.keyword}, {u"to"_s, to}};
}

QJsonObject constraint(Random &, const Place &place, const Place &other)
{
    return {{u"one"_s, u"*%1 %2"_s.arg(place.keyword, place.choice)},
            {u"other"_s, u"*%1 %2"_s.arg(other.keyword, other.choice)}};
}

QJsonObject nothing(Random &, const Place &, const Place &)
{
    return {};
}

struct EditRule
{
    QString name;
    Members members;
};

const QList<EditRule> kEdits{
    {u"drop"_s, keywordOnly},
    {u"drop"_s, keywordOnly},
    {u"dropChoice"_s, keywordAndChoice},
    {u"dropChoice"_s, keywordAndChoice},
    {u"only"_s, keywordAndChoice},
    {u"only"_s, keywordAndChoice},
    {u"default"_s, otherDefault},
    {u"default"_s, otherDefault},
    {u"noDefault"_s, keywordOnly},
    {u"rename"_s, otherKeyword},
    {u"renameChoice"_s, otherChoice},
    {u"title"_s, otherTitle},
    {u"type"_s, otherType},
    {u"twice"_s, keywordOnly},
    {u"addChoice"_s, oneMore},
    {u"model"_s, otherModel},
    {u"model"_s, otherModel},
    {u"attribute"_s, otherAttribute},
    {u"attribute"_s, otherAttribute},
    {u"constraint"_s, constraint},
    {u"constraint"_s, constraint},
    {u"noCustom"_s, nothing},
};

Place randomPlace(Random &random, const PPDFacts &facts)
{
    QStringList known;
    for (const QString &keyword : kKeywords)
        if (facts.options.contains(keyword))
            known += keyword;
    const QString keyword = random.pick(known);
    return {keyword, random.pick(facts.options[keyword])};
}

QJsonObject randomEdit(Random &random, const PPDFacts &facts)
{
    const EditRule rule = random.pick(kEdits);
    const Place place = randomPlace(random, facts);
    QJsonObject edit = rule.members(random, place, randomPlace(random, facts));
    edit["edit"_L1] = rule.name;
    return edit;
}

} // namespace

PreparedPPD randomPPD(Random &random, const ProgramUnderTest &program, const QString &fileName)
{
    const QString base =
        random.pick(program.ppdFolder().entryList({u"*.ppd"_s}, QDir::Files, QDir::Name));
    const QByteArray text = program.samplePPD(base);
    const PPDFacts facts = factsOf(text);
    QJsonArray edits;
    for (int count = random.chance(kUnchanged) ? 0 : random.between(1, kMostEdits); count > 0;
         --count)
        edits += randomEdit(random, facts);
    const QJsonObject recipe{{u"base"_s, base}, {u"edits"_s, edits}};
    return {fileName, recipe, factsOf(preparedPPD(recipe, text))};
}
