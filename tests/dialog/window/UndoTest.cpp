// Undo and redo in the dialog: all is as it was, and nobody sees how.
#include "dialog/host/controls/PanelParts.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/replay/StateReport.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ViewLoader.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/dialog/window/UndoFixture.h"
#include "tests/support/AlertAnswers.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

using namespace Qt::StringLiterals;

namespace {

class Undo : public UndoFixture
{};

TEST_F(Undo, TakesAPickBackWithAllThatItHasChanged)
{
    open();
    const std::string before = state();
    pick("mediaTypePopup", u"Glossy"_s);
    const std::string after = state();
    EXPECT_TRUE(part<QAbstractButton>("undoButton")->isVisible());
    click("undoButton");
    EXPECT_EQ(state(), before);
    EXPECT_EQ(notice(), u"Undone. Media Type is now Plain Paper (was Other Glossy Paper); Print "
                        "Quality is now Normal (was Photo); Bi-Directional Printing is now On (was "
                        "Off); Color Matching is now Vivid (was Natural)."_s);
    click("redoButton");
    EXPECT_EQ(state(), after);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_TRUE(part<QAbstractButton>("undoButton")->isVisible());
}

TEST_F(Undo, IsOfferedForAPickThatChangedMoreThanItself)
{
    open();
    pick("resolutionPopup", u"PlainFast"_s);
    EXPECT_EQ(m_window->findChild<QAbstractButton *>(u"undoButton"_s), nullptr);
    undo();
    EXPECT_EQ(marked(u"VKResolution"_s), u"PlainNormal"_s);
}

TEST_F(Undo, DoesNothingWhereNothingWasDone)
{
    open();
    const std::string before = state();
    undo();
    redo();
    EXPECT_EQ(state(), before);
    EXPECT_EQ(notice(), QString());
}

TEST_F(Undo, ForgetsWhatWasUndoneWhenSomethingElseIsPicked)
{
    open();
    pick("resolutionPopup", u"PlainFast"_s);
    undo();
    pick("mediaTypePopup", u"Glossy"_s);
    const std::string picked = state();
    redo();
    EXPECT_EQ(state(), picked);
}

TEST_F(Undo, ReachesThePageSetupTheLayoutAndTheHeader)
{
    open();
    showTab(u"setup"_s);
    QList<std::string> states{state()};
    const auto did = [&] { states += state(); };
    pick("paperPopup", u"A3"_s);
    did();
    part<QAbstractButton>("landscapeButton")->click();
    did();
    part<PopUpButton>("scalingPopup")->pick(1);
    did();
    pick("DuplexPopup", u"DuplexNoTumble"_s);
    did();
    QTest::keyClick(part<QSpinBox>("copiesField"), Qt::Key_Up);
    did();
    showTab(u"layout"_s);
    pick("number-upPopup", u"4"_s);
    did();
    for (qsizetype index = states.size() - 2; index >= 0; --index) {
        undo();
        EXPECT_EQ(state(), states[index]) << index;
    }
    EXPECT_EQ(part<PopUpButton>("number-upPopup")->currentIndex(), 0);
    EXPECT_EQ(part<QSpinBox>("copiesField")->value(), 1);
    for (qsizetype index = 1; index < states.size(); ++index) {
        redo();
        EXPECT_EQ(state(), states[index]) << index;
    }
    EXPECT_EQ(part<PopUpButton>("number-upPopup")->selectedObject(), u"4"_s);
}

TEST_F(Undo, RaisesNoAlertAndKeepsWhatAlertsRemember)
{
    open();
    const std::string before = state();
    pick("mediaTypePopup", u"Glossy"_s);
    {
        AlertAnswers answers({AlertAnswers::button(0, true)});
        pick("resolutionPopup", u"Best"_s);
        answers.take();
    }
    const std::string best = state();
    const QVariantMap memory = m_window->job().session()->alertMemory();
    ASSERT_FALSE(memory.isEmpty());
    AlertAnswers none;
    pick("monoColorPopup", u"Mono"_s);
    undo();
    EXPECT_EQ(state(), best);
    undo();
    undo();
    EXPECT_EQ(state(), before);
    redo();
    redo();
    EXPECT_EQ(state(), best);
    EXPECT_EQ(m_window->job().session()->alertMemory(), memory);
    EXPECT_EQ(none.take().size(), 0U);
}

TEST_F(Undo, LeavesTextFieldsTheirOwn)
{
    open();
    pick("resolutionPopup", u"PlainFast"_s);
    auto *pages = part<QLineEdit>("pagesField");
    pages->setFocus();
    QTest::keyClicks(pages, u"1-3"_s);
    QTest::keyClick(pages, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pages->text(), QString());
    EXPECT_EQ(marked(u"VKResolution"_s), u"PlainFast"_s);
}

TEST_F(Undo, TakesWhatIsTypedIntoOneFieldTogether)
{
    open();
    showTab(u"layout"_s);
    auto *title = part<QLineEdit>("titleField");
    title->setFocus();
    QTest::keyClicks(title, u"Holiday"_s);
    EXPECT_EQ(m_window->job().ownTitle(), u"Holiday"_s);
    part<QAbstractButton>("helpButton")->setFocus();
    undo();
    EXPECT_EQ(m_window->job().ownTitle(), QString());
    EXPECT_EQ(title->text(), QString());
    redo();
    EXPECT_EQ(title->text(), u"Holiday"_s);
}

TEST_F(Undo, TakesTheWayOfASliderTogether)
{
    open();
    showTab(u"color"_s);
    part<QAbstractButton>("colorEnhanceButton")->click();
    auto *slider = partsOfViews<FractionSlider>(*m_window->job().session()).at(2);
    const QString keyword = boundKeyOf(slider);
    slider->setSliderDown(true);
    for (const double value : {1.0, 4.0, 7.0}) {
        slider->moveByUser(value);
        QCoreApplication::processEvents();
    }
    slider->setSliderDown(false);
    slider->setSliderDown(true);
    slider->moveByUser(-5);
    slider->setSliderDown(false);
    QCoreApplication::processEvents();
    const auto value = [&] {
        for (const auto *one : partsOfViews<FractionSlider>(*m_window->job().session()))
            if (boundKeyOf(one) == keyword)
                return one->doubleValue();
        return 99.0;
    };
    undo();
    EXPECT_EQ(value(), 7);
    undo();
    EXPECT_EQ(value(), 0);
    redo();
    redo();
    EXPECT_EQ(value(), -5);
}

TEST_F(Undo, KeepsTheTabTheFocusAndTheFoldOfTheWindow)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    part<QAbstractButton>("optionButton")->click();
    QCoreApplication::processEvents();
    part<PopUpButton>("mediaTypePopup")->setFocus();
    const QSize size = m_window->size();
    undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
    EXPECT_TRUE(part<QAbstractButton>("optionButton")->isChecked());
    EXPECT_EQ(m_window->focusWidget(), part<PopUpButton>("mediaTypePopup"));
    EXPECT_EQ(m_window->size(), size);
    showTab(u"color"_s);
    undo();
    redo();
    EXPECT_EQ(part<QTabWidget>("parts")->currentIndex(), 2);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
}

TEST_F(Undo, BringsASessionThatIsRecordedToTheSameState)
{
    openRecorded();
    pick("mediaTypePopup", u"Glossy"_s);
    pick("resolutionPopup", u"Fast"_s);
    undo();
    pick("monoColorPopup", u"Mono"_s);
    undo();
    redo();
    undo();
    undo();
    redo();
    const QJsonObject expected = report();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    ASSERT_TRUE(finishRecording());
    EXPECT_EQ(QJsonDocument(replayed()).toJson(), QJsonDocument(expected).toJson());
}

} // namespace
