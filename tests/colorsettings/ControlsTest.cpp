#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/colorsettings/ColorPanelFixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyle>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct StateCase
{
    const char *name;
    bool vendorMatching;
    bool mono;
    bool enhancementOn;
    bool matrix;     // enabled
    bool halftone;   // and the enhancement box
    bool brightness; // contrast and revert
    bool gains;
};

const StateCase kStates[] = {
    {"ColourWithoutEnhancement", true, false, false, true, true, false, false},
    {"ColourWithEnhancement", true, false, true, true, true, true, true},
    {"MonoWithoutEnhancement", true, true, false, false, true, false, false},
    {"MonoWithEnhancement", true, true, true, false, true, true, false},
    {"ApplicationsColours", false, false, false, false, false, false, false},
};

class ControlStates : public ColorPanelTest, public testing::WithParamInterface<StateCase>
{
protected:
    static void prepare(ColorDialog &dialog, const StateCase &state)
    {
        if (!state.vendorMatching)
            dialog.setTicket("AP_ColorMatchingMode", u"AP_ApplicationColorMatching"_s);
        if (state.mono)
            dialog.setTicket("VKMonoColor", u"Mono"_s);
        if (state.enhancementOn)
            dialog.host->willChangePPDOptionKeyValue(u"VKColorEnhancement"_s, u"ON"_s);
        dialog.show();
    }

    static void expectState(ColorDialog &dialog, const char *name, bool enabled)
    {
        EXPECT_EQ(dialog.part<QWidget>(name).isEnabled(), enabled) << name;
    }

    static void expectColor(ColorDialog &dialog, const char *label, bool ordinary)
    {
        EXPECT_EQ(textColor(&dialog.part<QWidget>(label)),
                  ordinary ? controlTextColor() : disabledControlTextColor())
            << label;
    }

    static void expectAll(ColorDialog &dialog, const StateCase &state)
    {
        expectState(dialog, "colorMatchingMatrix", state.matrix);
        expectState(dialog, "ditherPopup", state.halftone);
        expectState(dialog, "colorEnhanceButton", state.halftone);
        expectState(dialog, "revertButton", state.brightness);
        expectColor(dialog, "colorMatchingLabel", state.matrix);
        expectColor(dialog, "ditherLabel", state.halftone);
        for (const char *value : {"brightness", "contrast"})
            expectValue(dialog, value, state.brightness);
        for (const char *value : {"red", "green", "blue"})
            expectValue(dialog, value, state.gains);
    }

    static void expectValue(ColorDialog &dialog, const QByteArray &value, bool on)
    {
        expectState(dialog, value + "Slider", on);
        expectState(dialog, value + "Field", on);
        expectColor(dialog, value + "Label", on);
        expectColor(dialog, value + "Field", on);
    }
};

constexpr StateCase kAllOff = {"Fax", true, false, true, false, false, false, false};

} // namespace

TEST_P(ControlStates, WhatHasNoEffectIsDimmed)
{
    ColorDialog dialog;
    prepare(dialog, GetParam());
    expectAll(dialog, GetParam());
    expectColor(dialog, "optionLabel", true);
    EXPECT_EQ(dialog.content("VKColorMatching"), QVariant(GetParam().vendorMatching));
    EXPECT_EQ(dialog.content("VKMonoColor"), QVariant(GetParam().matrix));
    EXPECT_EQ(dialog.content("VKColorEnhancement"), QVariant(GetParam().brightness));
    EXPECT_EQ(dialog.content("Color"), QVariant(GetParam().gains));
}

TEST_P(ControlStates, FaxDisablesAllOfItAndLeavingFaxBringsItBack)
{
    ColorDialog dialog;
    prepare(dialog, GetParam());
    dialog.host->willChangePPDOptionKeyValue(u"VKOutput"_s, u"FAX"_s);
    dialog.panel->restoreValuesAndReturnError(nullptr);
    expectAll(dialog, kAllOff);
    expectColor(dialog, "optionLabel", false);
    dialog.host->willChangePPDOptionKeyValue(u"VKOutput"_s, u"Printer"_s);
    dialog.panel->restoreValuesAndReturnError(nullptr);
    expectAll(dialog, GetParam());
    expectColor(dialog, "optionLabel", true);
}

INSTANTIATE_TEST_SUITE_P(States, ControlStates, testing::ValuesIn(kStates),
                         [](const auto &test) { return std::string(test.param.name); });

using ControlsTest = ColorPanelTest;

TEST_F(ControlsTest, AreFilledFromThePrinter)
{
    ColorDialog dialog;
    dialog.show();
    auto &matrix = dialog.part<RadioMatrix>("colorMatchingMatrix");
    EXPECT_EQ(matrix.numberOfRows(), 3);
    EXPECT_EQ(matrix.selectedObject(), u"Vivid"_s);
    auto &popup = dialog.part<PopUpButton>("ditherPopup");
    EXPECT_EQ(popup.count(), 2);
    EXPECT_EQ(popup.selectedObject(), u"Diffusion"_s);
    EXPECT_EQ(dialog.part<QLabel>("colorMatchingLabel").text(), u"Color Matching: "_s);
    EXPECT_EQ(dialog.part<QLabel>("ditherLabel").text(), u"Halftone Pattern: "_s);
    EXPECT_EQ(dialog.part<QLabel>("contrastLabel").text(), u"Contrast"_s);
    EXPECT_EQ(dialog.part<QLabel>("optionLabel").text(), u"Color Enhancement"_s);
    EXPECT_EQ(dialog.part<QPushButton>("revertButton").text(), u"Revert"_s);
}

TEST_F(ControlsTest, HaveNamesForScreenReaders)
{
    ColorDialog dialog;
    dialog.show();
    for (const char *name : {"redSlider", "redField"})
        EXPECT_EQ(dialog.part<QWidget>(name).accessibleName(), u"Red"_s);
    EXPECT_EQ(dialog.part<QWidget>("ditherPopup").accessibleName(), u"Halftone Pattern"_s);
    EXPECT_EQ(dialog.part<QWidget>("colorMatchingMatrix").accessibleName(), u"Color Matching"_s);
    EXPECT_EQ(dialog.part<QWidget>("optionButton").accessibleName(),
              u"Section: Color Enhancement"_s);
    EXPECT_EQ(dialog.part<QWidget>("effectImageView").accessibleName(), u"Preview"_s);
}

TEST_F(ControlsTest, AKeywordThatThePrinterLacksLeavesNoLabelBehind)
{
    ColorDialog dialog(PPDSource()
                           .attribute("APSupportsCustomColorMatching", "true")
                           .option("VKRed/Red & Rosy", {"0"})
                           .open());
    dialog.show();
    for (const char *name : {"colorMatchingMatrix", "colorMatchingLabel", "ditherPopup",
                             "ditherLabel", "colorEnhanceButton"})
        EXPECT_TRUE(dialog.part<QWidget>(name).isHidden()) << name;
    EXPECT_EQ(dialog.part<QLabel>("redLabel").text(), u"Red & Rosy"_s);
    EXPECT_EQ(dialog.part<QLabel>("greenLabel").text(), u"Green"_s) << "as the view has it";
}

TEST_F(ControlsTest, TheControlsAndTheirKeywordsFindEachOther)
{
    ColorDialog dialog;
    const auto &panel = dialog.show();
    struct Case
    {
        const char *keyword;
        const char *control;
        const char *label;
        const char *field;
    };
    const Case cases[] = {
        {"VKColorMatching", "colorMatchingMatrix", "colorMatchingLabel", nullptr},
        {"VKHalfTonePattern", "ditherPopup", "ditherLabel", nullptr},
        {"VKColorEnhancement", "colorEnhanceButton", nullptr, nullptr},
        {"VKBrightness", nullptr, "brightnessLabel", "brightnessField"},
        {"VKContrast", nullptr, "contrastLabel", "contrastField"},
        {"VKRed", nullptr, "redLabel", "redField"},
        {"VKGreen", nullptr, "greenLabel", "greenField"},
        {"VKBlue", nullptr, "blueLabel", "blueField"},
        {"vkred", nullptr, nullptr, nullptr},
        {"VKMonoColor", nullptr, nullptr, nullptr},
    };
    const auto named = [&](const char *name) -> QWidget * {
        return name ? &dialog.part<QWidget>(name) : nullptr;
    };
    for (const Case &c : cases) {
        const QString keyword = QLatin1String(c.keyword);
        EXPECT_EQ(panel.determineUI(keyword), named(c.control)) << c.keyword;
        EXPECT_EQ(panel.determineLabel(keyword), named(c.label)) << c.keyword;
        EXPECT_EQ(panel.determineField(keyword), named(c.field)) << c.keyword;
        if (c.control) {
            EXPECT_EQ(panel.determineKey(named(c.control)), keyword);
        }
    }
    EXPECT_TRUE(panel.determineKey(&dialog.part<QWidget>("redField")).isNull());
    EXPECT_TRUE(panel.determineKey(nullptr).isNull());
}

TEST_F(ControlsTest, BuildingThemASecondTimeDoesNothing)
{
    ColorDialog dialog;
    auto &panel = dialog.show();
    const int registrations = NotificationCenter::defaultCenter().registrationCount(&panel);
    dialog.part<QAbstractButton>("optionButton").click();
    dialog.part<QLabel>("optionLabel").setText(u"untouched"_s);
    panel.shouldHide();
    panel.willShow();
    panel.initializePopup();
    EXPECT_EQ(panel.loadedView()->height(), 312);
    EXPECT_EQ(dialog.content("advancedcolorItem"), QVariant(true));
    EXPECT_EQ(dialog.part<QLabel>("optionLabel").text(), u"untouched"_s);
    EXPECT_EQ(NotificationCenter::defaultCenter().registrationCount(&panel), registrations);
}

TEST_F(ControlsTest, TheClosingWindowEndsEveryRegistration)
{
    ColorDialog dialog;
    auto &panel = dialog.show();
    NotificationCenter::defaultCenter().post(QLatin1String(kWindowWillCloseNotification),
                                             dialog.window.get());
    EXPECT_EQ(NotificationCenter::defaultCenter().registrationCount(&panel), 0);
}

TEST_F(ControlsTest, APickedMatchingIsMarked)
{
    ColorDialog dialog;
    dialog.show();
    auto &matrix = dialog.part<RadioMatrix>("colorMatchingMatrix");
    matrix.pick(matrix.rowOfRepresentedObject(u"None"_s));
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorMatching=None"_s});
    EXPECT_EQ(dialog.marked("VKColorMatching"), u"None"_s);
}

TEST_F(ControlsTest, ARefusedMatchingIsPutBack)
{
    ColorDialog dialog;
    dialog.show();
    dialog.host->setRefused({u"VKColorMatching=None"_s});
    auto &matrix = dialog.part<RadioMatrix>("colorMatchingMatrix");
    matrix.pick(matrix.rowOfRepresentedObject(u"None"_s));
    EXPECT_EQ(matrix.selectedObject(), u"Vivid"_s);
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorMatching=None refused"_s});
}

TEST_F(ControlsTest, TheMatrixGrowsWithItsRowsAboveTheSectionsTitle)
{
    ColorDialog dialog(
        openText(sampleText(u"velkaro-px-t900"_s)
                     .replace("*VKColorMatching None/None:", "*VKColorMatching Soft/Soft: \"\"\n"
                                                             "*VKColorMatching Warm/Warm: \"\"\n"
                                                             "*VKColorMatching None/None:")));
    dialog.show();
    const auto &matrix = dialog.part<RadioMatrix>("colorMatchingMatrix");
    const auto cells = matrix.findChildren<QRadioButton *>();
    ASSERT_EQ(cells.size(), 5);
    const int circle = matrix.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight);
    for (qsizetype row = 1; row < cells.size(); ++row) {
        const int pitch =
            cells[row]->geometry().center().y() - cells[row - 1]->geometry().center().y();
        EXPECT_GT(pitch, circle) << row;
    }
    const QRect label = dialog.part<QWidget>("colorMatchingLabel").geometry();
    const int firstRow = matrix.y() + cells[0]->geometry().center().y();
    EXPECT_LE(std::abs(label.center().y() - firstRow), 1) << "beside the first row";
    EXPECT_LE(matrix.geometry().bottom(), dialog.part<QWidget>("optionLabel").geometry().top());
    EXPECT_LE(dialog.part<QWidget>("optionLabel").geometry().bottom(), 110);
    EXPECT_EQ(dialog.part<QWidget>("optionButton").y(), dialog.part<QWidget>("optionLabel").y());
    EXPECT_EQ(dialog.panel->loadedView()->height(), 110);
}

TEST_F(ControlsTest, AMatrixThatHasRoomStaysAsTheViewHasIt)
{
    ColorDialog dialog;
    dialog.show();
    EXPECT_EQ(dialog.part<QWidget>("colorMatchingMatrix").geometry(), QRect(152, 6, 112, 66));
    EXPECT_EQ(dialog.part<QWidget>("optionLabel").y(), 81);
}

TEST_F(ControlsTest, TheViewHasAnImageViewForTheColourMode)
{
    ColorDialog dialog;
    dialog.show();
    QWidget *image = dialog.panel->outlets().value(u"colorModeImageView"_s);
    ASSERT_TRUE(qobject_cast<ImageView *>(image));
    EXPECT_TRUE(image->isHidden()) << "it has nothing to show";
}

TEST_F(ControlsTest, TheEnhancementBoxSwitchesTheValuesOnAndOff)
{
    ColorDialog dialog;
    dialog.show();
    auto &box = dialog.part<QCheckBox>("colorEnhanceButton");
    dialog.part<QAbstractButton>("optionButton").click();
    dialog.calls.clear();
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorEnhancement=ON"_s});
    EXPECT_EQ(dialog.marked("VKColorEnhancement"), u"ON"_s);
    EXPECT_TRUE(dialog.part<QWidget>("redSlider").isEnabled());
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    EXPECT_EQ(dialog.marked("VKColorEnhancement"), u"OFF"_s);
    EXPECT_FALSE(dialog.part<QWidget>("redSlider").isEnabled());
}

TEST_F(ControlsTest, ARefusedEnhancementUnticksTheBox)
{
    ColorDialog dialog;
    dialog.show();
    dialog.host->setRefused({u"VKColorEnhancement"_s});
    auto &box = dialog.part<QCheckBox>("colorEnhanceButton");
    box.click();
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(dialog.content("VKColorEnhancement"), QVariant(false));
    EXPECT_EQ(dialog.pending("VKColorEnhancement"), QVariant(u"OFF"_s));
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorEnhancement=ON refused"_s});
}

TEST_F(ControlsTest, TheApplicationsColoursSwitchEnhancementOff)
{
    ColorDialog dialog;
    dialog.host->willChangePPDOptionKeyValue(u"VKColorEnhancement"_s, u"ON"_s);
    dialog.show();
    ASSERT_TRUE(dialog.part<QCheckBox>("colorEnhanceButton").isChecked());
    dialog.setTicket("AP_ColorMatchingMode", u"AP_ApplicationColorMatching"_s);
    dialog.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_FALSE(dialog.part<QCheckBox>("colorEnhanceButton").isChecked());
    EXPECT_EQ(dialog.marked("VKColorEnhancement"), u"OFF"_s);
}
