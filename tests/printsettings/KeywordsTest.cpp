#include "platform/foundation/PreferredLanguages.h"
#include "tests/printsettings/PrintPanel.h"
#include "tests/support/PPDSource.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

class Keywords : public PrintPanelTest
{};

struct Mapping
{
    QString keyword;
    QString control;
    QString label;
};

const Mapping kMappings[] = {
    {u"VKResolution"_s, u"resolutionPopup"_s, u"resolutionLabel"_s},
    {u"VKMediaType"_s, u"mediaTypePopup"_s, u"mediaTypeLabel"_s},
    {u"VKColorPaperThick"_s, u"paperThickPopup"_s, u"paperThickLabel"_s},
    {u"VKInputSlot"_s, u"paperFeedPopup"_s, u"paperFeedLabel"_s},
    {u"VKMonoColor"_s, u"monoColorPopup"_s, u"monoColorLabel"_s},
    {u"VKSlowDrying"_s, u"slowDryButton"_s, {}},
    {u"VKBiDir"_s, u"biDirButton"_s, {}},
    {u"VKMirror"_s, u"mirrorButton"_s, {}},
    {u"VKReverse"_s, u"reverseButton"_s, {}},
    {u"VKJpeg"_s, u"jpegPopup"_s, u"jpegLabel"_s},
    {u"VKDuplexMode"_s, u"duplexPopup"_s, u"duplexLabel"_s},
    {u"VKVertLineAlignA3B4Ledger"_s, u"vertLineAlignA3Button"_s, {}},
    {u"VKVertLineAlignA4Letter"_s, u"vertLineAlignA4Button"_s, {}},
    {u"VKVertLineAlignOther"_s, u"vertLineAlignOtherButton"_s, {}},
};

TEST_F(Keywords, LeadToTheirControlsAndLabelsAndBack)
{
    show();
    for (const Mapping &row : kMappings) {
        QWidget *control = panel->outlet(row.control);
        ASSERT_TRUE(control) << qPrintable(row.control);
        EXPECT_EQ(panel->determineUI(row.keyword), control) << qPrintable(row.keyword);
        EXPECT_EQ(panel->determineKey(control), row.keyword);
        EXPECT_EQ(panel->determineLabel(row.keyword), panel->outlet(row.label))
            << qPrintable(row.keyword);
    }
}

TEST_F(Keywords, OfCheckBoxesHaveNoLabel)
{
    show();
    EXPECT_EQ(panel->determineLabel(u"VKBiDir"_s), nullptr);
    EXPECT_EQ(panel->determineLabel(u"VKMirror"_s), nullptr);
    EXPECT_EQ(panel->determineLabel(u"VKVertLineAlignDedicated"_s), nullptr);
}

TEST_F(Keywords, AreComparedExactly)
{
    show();
    for (const QString &keyword :
         {u"vkmediatype"_s, u"VKMediaTyp"_s, u"PageSize"_s, u""_s, QString()}) {
        EXPECT_EQ(panel->determineUI(keyword), nullptr) << qPrintable(keyword);
        EXPECT_EQ(panel->determineLabel(keyword), nullptr) << qPrintable(keyword);
    }
}

TEST_F(Keywords, OfOtherControlsAreNone)
{
    show();
    EXPECT_TRUE(panel->determineKey(panel->outlet(u"optionButton"_s)).isNull());
    EXPECT_TRUE(panel->determineKey(panel->outlet(u"mediaTypeLabel"_s)).isNull());
}

// Before the view is loaded every outlet is null, and so is a control that is not there.
TEST_F(Keywords, OfNoControlAreNoneAlsoWhileNoOutletIsConnected)
{
    open();
    EXPECT_TRUE(panel->determineKey(nullptr).isNull());
    panel->panelView();
    EXPECT_TRUE(panel->determineKey(nullptr).isNull());
}

TEST_F(Keywords, BothOfMirrorPrintingLeadToTheOneBox)
{
    show();
    EXPECT_EQ(panel->determineUI(u"VKMirror"_s), box(u"mirrorButton"_s));
    EXPECT_EQ(panel->determineUI(u"MirrorPrint"_s), box(u"mirrorButton"_s));
    EXPECT_EQ(panel->determineKey(box(u"mirrorButton"_s)), u"VKMirror"_s);
}

TEST_F(Keywords, TheMirrorBoxIsMirrorPrintOnAPrinterWithoutVKMirror)
{
    useSample(u"velkaro-mx-j710dw"_s);
    show();
    EXPECT_EQ(panel->determineKey(box(u"mirrorButton"_s)), u"MirrorPrint"_s);
    EXPECT_EQ(panel->determineUI(u"MirrorPrint"_s), box(u"mirrorButton"_s));
}

TEST_F(Keywords, TheDedicatedMediaBelongToJapaneseAlone)
{
    show();
    for (const QString &language : {u"en"_s, u"ja-JP"_s, u"JA"_s}) {
        setPreferredLanguages({language});
        EXPECT_EQ(panel->determineUI(u"VKVertLineAlignDedicated"_s), nullptr);
        EXPECT_TRUE(panel->determineKey(box(u"vertLineAlignQM43Button"_s)).isNull());
    }
    setPreferredLanguages({u"ja"_s, u"en"_s});
    EXPECT_EQ(panel->determineUI(u"VKVertLineAlignDedicated"_s), box(u"vertLineAlignQM43Button"_s));
    EXPECT_EQ(panel->determineKey(box(u"vertLineAlignQM43Button"_s)),
              u"VKVertLineAlignDedicated"_s);
    setPreferredLanguages({u"en"_s, u"ja"_s});
    EXPECT_EQ(panel->determineUI(u"VKVertLineAlignDedicated"_s), nullptr);
}

TEST_F(Keywords, ToSummariseAreThePanelsOwnInOrder)
{
    open();
    const QStringList expected = {u"VKMediaType"_s,
                                  u"VKResolution"_s,
                                  u"VKMonoColor"_s,
                                  u"VKColorPaperThick"_s,
                                  u"VKInputSlot"_s,
                                  u"VKMirror"_s,
                                  u"VKReverse"_s,
                                  u"VKJpeg"_s,
                                  u"VKDuplexMode"_s,
                                  u"VKBiDir"_s,
                                  u"VKSlowDrying"_s,
                                  u"VKVertLineAlignA3B4Ledger"_s,
                                  u"VKVertLineAlignA4Letter"_s,
                                  u"VKVertLineAlignOther"_s,
                                  u"VKVertLineAlignDedicated"_s};
    EXPECT_EQ(panel->availablePPDOptionKeys(), expected);
    EXPECT_EQ(panel->supportedPPDOptionKeys(), expected);
}

TEST_F(Keywords, ToSummariseLackJpegPrintingWhileItCannotBeSelected)
{
    open();
    QStringList expected = *panel->supportedPPDOptionKeys();
    expected.removeAll(u"VKJpeg"_s);
    panel->setFlag(JpegUnavailable, true);
    EXPECT_EQ(panel->availablePPDOptionKeys(), expected);
    EXPECT_TRUE(panel->supportedPPDOptionKeys()->contains(u"VKJpeg"_s));
}

TEST_F(Keywords, ToSummariseAreNoneWithoutAList)
{
    EXPECT_EQ(panel->supportedPPDOptionKeys(), std::nullopt);
    EXPECT_EQ(panel->availablePPDOptionKeys(), QStringList());
}

struct ClassOfPrinter
{
    int number;
    QString name;
    bool newer;
};

TEST_F(Keywords, TheModelClassIsReadFromThePPD)
{
    for (const ClassOfPrinter &row : {ClassOfPrinter{11, u"Velkaro Nobody"_s, true},
                                      ClassOfPrinter{10, u"Velkaro Nobody"_s, false},
                                      ClassOfPrinter{0, u"Velkaro MX-J710DW"_s, true},
                                      ClassOfPrinter{0, u"Velkaro MX-J605DW"_s, false},
                                      ClassOfPrinter{7, u"Velkaro PX-330C"_s, false}}) {
        usePrinter(PPDSource().modelName(row.name.toUtf8()).modelNumber(row.number).open());
        open();
        EXPECT_EQ(panel->hasFlag(NewerModelClass), row.newer) << qPrintable(row.name);
        panel->setFlag(NewerModelClass, !row.newer);
        panel->checkModelName();
        EXPECT_EQ(panel->hasFlag(NewerModelClass), row.newer) << qPrintable(row.name);
    }
}

TEST_F(Keywords, TheSuffixSaysOnOnlyForAnEnabledTickedBox)
{
    QCheckBox ticked;
    ticked.setTristate(true);
    ticked.setCheckState(Qt::Checked);
    EXPECT_EQ(panel->addOnOffSuffix(&ticked, u"icon"_s), u"icon_on"_s);
    ticked.setEnabled(false);
    EXPECT_EQ(panel->addOnOffSuffix(&ticked, u"icon"_s), u"icon_off"_s);
    ticked.setEnabled(true);
    ticked.setCheckState(Qt::PartiallyChecked);
    EXPECT_EQ(panel->addOnOffSuffix(&ticked, u"icon"_s), u"icon_off"_s);
    ticked.setCheckState(Qt::Unchecked);
    EXPECT_EQ(panel->addOnOffSuffix(&ticked, u"icon"_s), u"icon_off"_s);
    EXPECT_EQ(panel->addOnOffSuffix(nullptr, u"icon"_s), u"icon_off"_s);
}

} // namespace
