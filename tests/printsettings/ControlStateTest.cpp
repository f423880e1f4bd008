#include "tests/printsettings/PrintPanel.h"

using namespace Qt::StringLiterals;

// The items of the full model's pop-ups, for reading the outcomes below:
//   media    Plain Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy HagakiAtena
//   HagakiUra
//            Transparencies PrintableDisc GlossyPrintableDisc
//   feed     Tray1 Tray2 MPTray AutoSelect
//   colour   Color Mono

namespace {

// What an outcome consists of: one pop-up whose items matter, and the qualities beside it.
struct ChangeState
{
    QString name;
    QString popup;
    QString selected; ///< before
    QString disabled; ///< before: items that are disabled, by spaces
    bool disc;        ///< the disc bit
    QString list;     ///< by spaces
    bool enable;
    bool applyDefault;
    QString items;     ///< of the pop-up, after
    QString qualities; ///< of the quality pop-up, after; null: as they were
};

void PrintTo(const ChangeState &row, std::ostream *out)
{
    *out << qPrintable(row.name);
}

class ControlState : public PrintPanelTest, public testing::WithParamInterface<ChangeState>
{
protected:
    void SetUp() override
    {
        show();
        panel->setFlag(DiscPaper, GetParam().disc);
        PopUpButton *changed = popup(GetParam().popup);
        for (int index = 0; index < changed->count(); ++index)
            changed->setItemEnabled(index, true);
        for (const QString &choice : GetParam().disabled.split(u' '))
            changed->setItemEnabled(changed->indexOfRepresentedObject(choice), false);
        ASSERT_TRUE(changed->selectObject(GetParam().selected));
    }
};

TEST_P(ControlState, Changes)
{
    const ChangeState &row = GetParam();
    const QString before = itemsOf(popup(u"resolutionPopup"_s));
    const QVariantMap pendingBefore = panel->outputBin();
    panel->changeState(popup(row.popup), row.list.split(u' '), row.enable, row.applyDefault);
    EXPECT_EQ(itemsOf(popup(row.popup)), row.items);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), row.popup == "resolutionPopup"_L1 ? row.items
                                                    : row.qualities.isNull()          ? before
                                                                             : row.qualities);
    EXPECT_EQ(panel->outputBin(), pendingBefore);
    EXPECT_EQ(log(), QStringList());
}

const QString kMediaPopup = u"mediaTypePopup"_s;
const QString kQualityPopup = u"resolutionPopup"_s;
const QString kFeedPopup = u"paperFeedPopup"_s;
const QString kColorPopup = u"monoColorPopup"_s;
const QString kDiscQualities = u"DiscNormal* DiscSlow"_s;

INSTANTIATE_TEST_SUITE_P(
    Media, ControlState,
    testing::Values(
        ChangeState{u"disabling others keeps the selection"_s,
                    kMediaPopup,
                    u"Glossy"_s,
                    {},
                    false,
                    u"Inkjet Nothing"_s,
                    false,
                    false,
                    u"Plain -Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy* "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"_s,
                    {}},
        ChangeState{u"a selection that becomes disabled moves to plain paper"_s,
                    kMediaPopup,
                    u"Glossy"_s,
                    {},
                    false,
                    u"Glossy"_s,
                    false,
                    false,
                    u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte -Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"_s,
                    {}},
        ChangeState{u"disabling with a default moves an enabled selection"_s,
                    kMediaPopup,
                    u"Glossy"_s,
                    {},
                    false,
                    u"Inkjet"_s,
                    false,
                    true,
                    u"Plain* -Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"_s,
                    {}},
        ChangeState{u"enabling with a default selects plain paper whatever is selected"_s,
                    kMediaPopup,
                    u"Glossy"_s,
                    {},
                    false,
                    u"Glossy Inkjet"_s,
                    true,
                    true,
                    u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"_s,
                    {}},
        ChangeState{u"enabling leaves items outside the list as they are"_s,
                    kMediaPopup,
                    u"Plain"_s,
                    u"Glossy Inkjet"_s,
                    false,
                    u"Inkjet"_s,
                    true,
                    false,
                    u"Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte -Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"_s,
                    {}},
        ChangeState{u"a disabled item stays selected where it is the default itself"_s,
                    kMediaPopup,
                    u"Plain"_s,
                    {},
                    false,
                    u"Plain"_s,
                    false,
                    false,
                    u"-Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"_s,
                    {}},
        ChangeState{u"the default is selected even when it is disabled"_s,
                    kMediaPopup,
                    u"Glossy"_s,
                    u"Plain"_s,
                    false,
                    u"Glossy"_s,
                    false,
                    false,
                    u"-Plain* Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte -Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"_s,
                    {}},
        ChangeState{u"on a disc the default is the disc with its qualities"_s,
                    kMediaPopup,
                    u"Glossy"_s,
                    {},
                    true,
                    u"Plain"_s,
                    true,
                    true,
                    u"Plain Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc* GlossyPrintableDisc"_s,
                    kDiscQualities},
        ChangeState{u"on a disc a disabled selection moves to the disc"_s,
                    kMediaPopup,
                    u"Glossy"_s,
                    {},
                    true,
                    u"Glossy Plain"_s,
                    false,
                    false,
                    u"-Plain Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte -Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc* GlossyPrintableDisc"_s,
                    kDiscQualities},
        ChangeState{u"on a disc an enabled selection stays"_s,
                    kMediaPopup,
                    u"GlossyPrintableDisc"_s,
                    {},
                    true,
                    u"Plain"_s,
                    false,
                    false,
                    u"-Plain Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc*"_s,
                    {}}));

INSTANTIATE_TEST_SUITE_P(
    Qualities, ControlState,
    testing::Values(ChangeState{u"enabling leaves exactly the list"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"PlainFast PlainNormal Best"_s,
                                true,
                                false,
                                u"PlainFast* PlainNormal Best"_s,
                                {}},
                    ChangeState{u"enabling with a default selects the medium's"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"PlainFast PlainNormal Best"_s,
                                true,
                                true,
                                u"PlainFast PlainNormal* Best"_s,
                                {}},
                    ChangeState{u"a default that is not in the list leaves the first item"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"Fast Photo Best"_s,
                                true,
                                true,
                                u"Fast* Photo Best"_s,
                                {}},
                    ChangeState{u"names without a title are passed over"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"Best Draft PlainNormal"_s,
                                true,
                                true,
                                u"Best PlainNormal*"_s,
                                {}},
                    ChangeState{u"nothing is left of names without a title"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"Draft"_s,
                                true,
                                true,
                                u""_s,
                                {}},
                    ChangeState{u"disabling keeps an enabled selection"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"PlainFast"_s,
                                false,
                                false,
                                u"-PlainFast PlainNormal High* Best"_s,
                                {}},
                    ChangeState{u"disabling moves a disabled selection to the default"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"High"_s,
                                false,
                                false,
                                u"PlainFast PlainNormal* -High Best"_s,
                                {}},
                    ChangeState{u"disabling with a default selects it"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"PlainFast"_s,
                                false,
                                true,
                                u"-PlainFast PlainNormal* High Best"_s,
                                {}},
                    ChangeState{u"the default is selected though it is disabled"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                false,
                                u"High PlainNormal"_s,
                                false,
                                false,
                                u"PlainFast -PlainNormal* -High Best"_s,
                                {}},
                    ChangeState{u"on a disc likewise"_s,
                                kQualityPopup,
                                u"High"_s,
                                {},
                                true,
                                u"DiscNormal DiscSlow"_s,
                                true,
                                false,
                                u"DiscNormal* DiscSlow"_s,
                                {}}));

INSTANTIATE_TEST_SUITE_P(
    Feed, ControlState,
    testing::Values(ChangeState{u"enabling leaves the other items"_s,
                                kFeedPopup,
                                u"MPTray"_s,
                                u"Tray2 AutoSelect"_s,
                                false,
                                u"Tray2"_s,
                                true,
                                false,
                                u"Tray1 Tray2 MPTray* -AutoSelect"_s,
                                {}},
                    ChangeState{u"enabling with a default selects the first tray"_s,
                                kFeedPopup,
                                u"MPTray"_s,
                                {},
                                false,
                                u"Tray2"_s,
                                true,
                                true,
                                u"Tray1* Tray2 MPTray AutoSelect"_s,
                                {}},
                    ChangeState{u"disabling keeps an enabled selection"_s,
                                kFeedPopup,
                                u"MPTray"_s,
                                {},
                                false,
                                u"Tray2"_s,
                                false,
                                false,
                                u"Tray1 -Tray2 MPTray* AutoSelect"_s,
                                {}},
                    ChangeState{u"a disabled selection moves to the first tray"_s,
                                kFeedPopup,
                                u"MPTray"_s,
                                {},
                                false,
                                u"MPTray"_s,
                                false,
                                false,
                                u"Tray1* Tray2 -MPTray AutoSelect"_s,
                                {}},
                    ChangeState{u"on a disc a disabled selection moves to the first tray"_s,
                                kFeedPopup,
                                u"MPTray"_s,
                                {},
                                true,
                                u"MPTray"_s,
                                false,
                                false,
                                u"Tray1* Tray2 -MPTray AutoSelect"_s,
                                {}},
                    ChangeState{u"disabling with a default selects the first tray"_s,
                                kFeedPopup,
                                u"MPTray"_s,
                                {},
                                false,
                                u"Tray2"_s,
                                false,
                                true,
                                u"Tray1* -Tray2 MPTray AutoSelect"_s,
                                {}}));

INSTANTIATE_TEST_SUITE_P(
    OtherPopUps, ControlState,
    testing::Values(ChangeState{u"a disabled item stays selected for want of a default"_s,
                                kColorPopup,
                                u"Mono"_s,
                                {},
                                false,
                                u"Mono"_s,
                                false,
                                false,
                                u"Color -Mono*"_s,
                                {}},
                    ChangeState{u"also with a default asked for"_s,
                                kColorPopup,
                                u"Mono"_s,
                                {},
                                false,
                                u"Mono"_s,
                                false,
                                true,
                                u"Color -Mono*"_s,
                                {}},
                    ChangeState{u"enabling the qualities' list changes nothing"_s,
                                kColorPopup,
                                u"Mono"_s,
                                {},
                                false,
                                u"PlainFast PlainNormal Best"_s,
                                true,
                                true,
                                u"Color Mono*"_s,
                                {}},
                    ChangeState{u"on a disc likewise"_s,
                                kColorPopup,
                                u"Mono"_s,
                                {},
                                true,
                                u"Mono"_s,
                                false,
                                false,
                                u"Color -Mono*"_s,
                                {}}));

class ControlStateAfterDisc : public PrintPanelTest
{
protected:
    // The quality pop-up as it was on a disc, on a paper that is none.
    void showDiscQualities(const QString &medium, const QString &quality)
    {
        show();
        panel->changeState(popup(kQualityPopup), {u"DiscNormal"_s, u"DiscSlow"_s}, true, true);
        ASSERT_TRUE(popup(kQualityPopup)->selectObject(quality));
        ASSERT_TRUE(popup(kMediaPopup)->selectObject(medium));
        panel->setFlag(SlowDryingUnavailable, true);
        log();
    }
};

TEST_F(ControlStateAfterDisc, TheQualitiesOfTheMediumComeBackThoughNoDefaultWasAskedFor)
{
    showDiscQualities(u"Glossy"_s, u"DiscSlow"_s);
    panel->changeState(popup(kFeedPopup), {u"Tray2"_s}, false, false);
    EXPECT_EQ(itemsOf(popup(kQualityPopup)), u"Fast Photo* Best"_s);
    EXPECT_EQ(itemsOf(popup(kFeedPopup)), u"Tray1* -Tray2 MPTray AutoSelect"_s);
    EXPECT_FALSE(panel->hasFlag(SlowDryingUnavailable));
    EXPECT_EQ(log(), QStringList());
}

TEST_F(ControlStateAfterDisc, AMediumForDiscsAloneIsReplacedByPlainPaper)
{
    showDiscQualities(u"GlossyPrintableDisc"_s, u"DiscNormal"_s);
    panel->recordPendingValue(u"VKMediaType"_s, u"GlossyPrintableDisc"_s);
    panel->recordPendingValue(u"VKResolution"_s, u"DiscNormal"_s);
    panel->changeState(popup(kFeedPopup), {u"Tray2"_s}, false, false);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=Plain"_s, u"VKResolution=PlainNormal"_s}));
    // "Photo", the default of the medium that the pop-up shows, is not among them.
    EXPECT_EQ(itemsOf(popup(kQualityPopup)), u"PlainFast* PlainNormal High Best"_s);
}

TEST_F(ControlStateAfterDisc, ThePrintableDiscKeepsItsQualities)
{
    showDiscQualities(u"PrintableDisc"_s, u"DiscSlow"_s);
    panel->changeState(popup(kFeedPopup), {u"Tray2"_s}, false, false);
    EXPECT_EQ(itemsOf(popup(kQualityPopup)), u"DiscNormal DiscSlow*"_s);
    EXPECT_TRUE(panel->hasFlag(SlowDryingUnavailable));
}

TEST_F(ControlStateAfterDisc, OnADiscTheyStay)
{
    showDiscQualities(u"Glossy"_s, u"DiscSlow"_s);
    panel->setFlag(DiscPaper, true);
    panel->changeState(popup(kFeedPopup), {u"Tray2"_s}, false, false);
    EXPECT_EQ(itemsOf(popup(kQualityPopup)), u"DiscNormal DiscSlow*"_s);
}

TEST_F(ControlStateAfterDisc, WithADefaultAskedForTheyStayToo)
{
    showDiscQualities(u"Glossy"_s, u"DiscSlow"_s);
    panel->changeState(popup(kFeedPopup), {u"Tray2"_s}, true, true);
    EXPECT_EQ(itemsOf(popup(kQualityPopup)), u"DiscNormal DiscSlow*"_s);
}

TEST_F(PrintPanelTest, ChangingTheStateOfNoPopUpDoesNothing)
{
    open();
    const QVariantMap before = panel->outputBin();
    panel->setFlag(DiscPaper, true);
    panel->changeState(nullptr, {u"Plain"_s}, true, true);
    panel->changeState(nullptr, {u"Plain"_s}, false, false);
    EXPECT_EQ(panel->outputBin(), before);
    EXPECT_EQ(log(), QStringList());
}

} // namespace
