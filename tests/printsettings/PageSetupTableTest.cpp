#include "tests/printsettings/PrintPanel.h"

#include "tests/support/Files.h"

#include <QtCore/QFile>

using namespace Qt::StringLiterals;

// From every kind of paper to every other, by the medium and the thickness that are chosen on the
// first one, with and without a view: the whole outcome, held against PageSetupTable.txt.
//
//   A4 > EnvDL
//   hidden Plain Thick: Plain/PlainNormal Env OFF 000c0 | VKColorPaperThick=Regular ...
//   shown  Plain Thick: Plain/PlainNormal Env OFF 000c0 | ... | Plain*/PlainNormal* Env off
//   disabled
//
// that is: pending medium, quality, thickness and direction, the bits of the rules, then what the
// dialog was offered and what was posted (and "alert" where one was raised), and then what the
// controls show.

namespace {

struct Paper
{
    QString name;
    QString ppdName; ///< null: the user's own size
    QSizeF size;
    QStringList media; ///< that can be chosen on it
};

const QStringList kAnyMedium = {u"Plain"_s, u"Glossy"_s, u"Transparencies"_s};
const QStringList kBorderlessMedia = {u"Plain"_s, u"Glossy"_s};
const QStringList kDiscMedia = {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s};

const Paper kPapers[] = {
    {u"A4"_s, u"A4"_s, {595, 842}, kAnyMedium},
    {u"A4.Fullbleed"_s, u"A4.Fullbleed"_s, {595, 842}, kBorderlessMedia},
    {u"A3.Fullbleed"_s, u"A3.Fullbleed"_s, {842, 1191}, kBorderlessMedia},
    {u"120x120mm"_s, u"120x120mm"_s, {340, 340}, kDiscMedia},
    {u"VkDisc12cm"_s, u"VkDisc12cm"_s, {340, 340}, kDiscMedia},
    {u"EnvDL"_s, u"EnvDL"_s, {312, 624}, kAnyMedium},
    {u"Postcard"_s, u"Postcard"_s, {283, 420}, kAnyMedium},
    {u"Custom.300x400"_s, {}, {300, 400}, kAnyMedium},
    {u"Letter"_s, {}, {9, 9}, kAnyMedium}, // out of range: unsupported
};

constexpr std::int32_t kRuleBits = DuplexOn | SlowDryingUnavailable | TransparenciesMedium |
                                   BorderlessPaper | EnvelopePaper | BiDirLeftAlone | DiscPaper |
                                   PreviousDiscPaper | NaturalColorMatching;

class PageSetupTable : public PrintPanelTest
{
protected:
    QString outcomeOf(const Paper &from, const Paper &to, const QString &medium,
                      const QString &thickness, bool shown)
    {
        useSample(u"velkaro-px-t900"_s);
        session->setPaper(from.name, from.ppdName, from.size);
        if (shown)
            show();
        else
            open();
        choose(u"mediaTypePopup"_s, u"VKMediaType"_s, medium, shown);
        if (!shown)
            panel->setDefaultQuality(medium);
        choose(u"paperThickPopup"_s, u"VKColorPaperThick"_s, thickness, shown);
        log();
        AnyAlert alerts;
        session->changePaper(to.name, to.ppdName, to.size);
        const QString told = (alerts.raised ? u"alert "_s : u""_s) + log().join(u' ');
        return pendingState() + u" | "_s + told + (shown ? u" | "_s + shownState() : u""_s);
    }

    // One line for both thicknesses where they come to the same.
    QStringList linesOf(const Paper &from, const Paper &to, const QString &medium, bool shown)
    {
        const QString start = (shown ? u"shown  "_s : u"hidden "_s) + medium;
        const QString thick = outcomeOf(from, to, medium, u"Thick"_s, shown);
        const QString env = outcomeOf(from, to, medium, u"Env"_s, shown);
        if (thick == env)
            return {start + u": "_s + thick};
        return {start + u" Thick: "_s + thick, start + u" Env: "_s + env};
    }

private:
    // Confirms whatever is raised; the table says where that was.
    struct AnyAlert : AlertObserver
    {
        AnyAlert() : before(alertObserver()) { setAlertObserver(this); }
        ~AnyAlert() override { setAlertObserver(before); }
        void alertShown(const ShownAlert &alert) override
        {
            raised = true;
            alert.press(0);
        }
        AlertObserver *before;
        bool raised = false;
    };

    void choose(const QString &control, const QString &keyword, const QString &choice, bool shown)
    {
        if (shown)
            pickChoice(panel->outlet(control), choice);
        else
            panel->setAndMarkValue(choice, keyword);
    }

    QString pendingState()
    {
        return panel->pending() + u' ' + pending(u"VKColorPaperThick"_s) + u' ' +
               panel->pendingBiDir() + u' ' +
               u"%1"_s.arg(panel->imageModeFlag() & kRuleBits, 5, 16, QLatin1Char('0'));
    }

    QString shownState()
    {
        return popup(u"mediaTypePopup"_s)->selectedObject() + u'/' +
               popup(u"resolutionPopup"_s)->selectedObject() + u' ' +
               popup(u"paperThickPopup"_s)->selectedObject() + u' ' +
               stateOf(box(u"biDirButton"_s));
    }
};

QStringList readTable()
{
    const QByteArray text = readFile(QStringLiteral(VELKARO_TEST_SOURCE "/PageSetupTable.txt"));
    return QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
}

// For looking at, and for taking over where a change was meant.
void writeTable(const QStringList &lines)
{
    writeFile(u"PageSetupTable.actual.txt"_s, (lines.join(u'\n') + u'\n').toUtf8());
}

TEST_F(PageSetupTable, HoldsForEveryChangeOfPaper)
{
    QStringList lines;
    for (const Paper &from : kPapers) {
        for (const Paper &to : kPapers) {
            if (from.name == to.name)
                continue;
            lines << from.name + u" > "_s + to.name;
            for (const bool shown : {false, true}) {
                for (const QString &medium : from.media)
                    lines << linesOf(from, to, medium, shown);
            }
        }
    }
    const QStringList expected = readTable();
    if (lines != expected)
        writeTable(lines);
    ASSERT_EQ(lines.size(), expected.size());
    for (qsizetype index = 0; index < lines.size(); ++index)
        EXPECT_EQ(lines[index], expected[index]);
}

} // namespace
