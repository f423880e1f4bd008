#include "tests/golden/RunMaker.h"

#include "tests/golden/RandomOpen.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

const auto kPPDName = u"printer.ppd"_s;
const QStringList kSliders{u"VKBrightness"_s, u"VKContrast"_s, u"VKRed"_s, u"VKGreen"_s,
                           u"VKBlue"_s};

QString ownSetting(Random &random)
{
    static const QStringList good{u"copies=2"_s,
                                  u"copies=999"_s,
                                  u"page-ranges=1-3,7"_s,
                                  u"page-ranges=2"_s,
                                  u"orientation-requested=4"_s,
                                  u"orientation-requested=landscape"_s,
                                  u"orientation-requested=portrait"_s,
                                  u"orientation-requested=3"_s};
    static const QStringList bad{u"copies=0"_s,        u"copies=x"_s, u"page-ranges=,"_s,
                                 u"page-ranges=9-2"_s, u"NoSuch=1"_s, u"VKMediaType=Papyrus"_s,
                                 u"media=A4"_s};
    return random.pick(random.chance(88) ? good : bad);
}

QString sliderSetting(Random &random)
{
    static const QStringList values{u"0"_s, u"-20"_s, u"20"_s, u"3"_s, u"7.5"_s};
    static const QStringList odd{u"21"_s, u"x"_s, u"-20.5"_s};
    const QString value = random.chance(80) ? random.pick(values) : random.pick(odd);
    return random.pick(kSliders) + u'=' + value;
}

QString paperName(Random &random, const PPDFacts &facts)
{
    static const QStringList others{
        u"Custom.300x400"_s,  u"Custom.10x15cm"_s, u"Custom.4x6in"_s, u"Custom.9000x9000"_s,
        u"Custom.1x1"_s,      u"Custom.axb"_s,     u"Nowhere"_s,      u"a4"_s,
        u"Custom.210x297mm"_s};
    return random.chance(20) ? random.pick(others)
                             : randomPaper(random, facts)["name"_L1].toString();
}

QString setting(Random &random, const PPDFacts &facts)
{
    const int kind = random.below(100);
    if (kind < 20)
        return ownSetting(random);
    if (kind < 30)
        return u"PageSize="_s + paperName(random, facts);
    RandomChoice choice = randomChoice(random, facts);
    // Most of these would only say that they cannot be chosen now.
    while (kSliders.contains(choice.keyword) && random.chance(90))
        choice = randomChoice(random, facts);
    return choice.keyword + u'=' + choice.choice;
}

/// Faults that most runs do not have.
QStringList oddArgument(Random &random)
{
    static const QList<QStringList> odd{{u"-o"_s, u"novalue"_s},
                                        {u"--screenshot"_s, u"a.png"_s},
                                        {u"--frobnicate"_s},
                                        {u"missing.pdf"_s},
                                        {u"note.txt"_s},
                                        {u"letter.pdf"_s},
                                        {u"--plug-in"_s, u"missing.bundle"_s},
                                        {u"--yes=1"_s},
                                        {u"-o"_s}};
    return random.pick(odd);
}

QStringList arguments(Random &random, const PPDFacts &facts)
{
    QStringList arguments{u"--no-dialog"_s, u"--ppd"_s,
                          random.chance(97) ? kPPDName : u"missing.ppd"_s};
    // Sliders move only in natural or vivid colours that are to be enhanced.
    if (random.chance(20))
        arguments += {u"-o"_s, u"VKColorEnhancement=ON"_s, u"-o"_s, sliderSetting(random)};
    for (int count = random.below(3); count > 0; --count)
        arguments += {u"-o"_s, setting(random, facts)};
    if (random.chance(40))
        arguments += {u"--paper"_s, paperName(random, facts)};
    if (random.chance(45))
        arguments += u"--yes"_s;
    arguments += {u"--output"_s, random.chance(97) ? u"job"_s : u"missing/job"_s, u"letter.pdf"_s};
    if (random.chance(10))
        arguments += oddArgument(random);
    return arguments;
}

/// Settings that somebody saved for the queue and its instance.
QString savedSettings(Random &random, const PPDFacts &facts)
{
    QString lines;
    for (const char *queue : {"Dest Photo", "Dest Photo/draft"}) {
        lines += QLatin1String(queue);
        for (int count = random.between(1, 4); count > 0; --count) {
            const RandomChoice choice = randomChoice(random, facts);
            lines += u' ' + choice.keyword + u'=' + choice.choice;
        }
        lines += random.chance(30) ? u" com.velkaro.print.PrintSettings.T2T_Red=7\n"_s : u"\n"_s;
    }
    return lines;
}

} // namespace

QByteArray randomRun(const ProgramUnderTest &program, quint32 seed, quint32 index)
{
    // Not the row of numbers that the session of the same index comes from.
    Random random(~seed, index);
    const PreparedPPD ppd = randomPPD(random, program, kPPDName);
    QJsonArray all = QJsonArray::fromStringList(arguments(random, ppd.facts));
    QJsonObject run{{u"ppds"_s, QJsonObject{{kPPDName, ppd.recipe}}}};
    if (random.chance(30))
        run["language"_L1] = u"ja"_s;
    if (random.chance(20)) {
        run["lpoptions"_L1] = savedSettings(random, ppd.facts);
        all += u"-d"_s;
        all += random.chance(50) ? u"Photo"_s : u"Photo/draft"_s;
    }
    run["arguments"_L1] = all;
    return QJsonDocument(run).toJson(QJsonDocument::Indented);
}
