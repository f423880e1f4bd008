#include "platform/toolkit/CaptionLabel.h"
#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/SizeWatch.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtGui/QPalette>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

TEST(ControlColorTest, IsOrdinaryUntilItIsDimmed)
{
    QLabel label;
    EXPECT_EQ(textColor(&label), ControlColor::ControlText);
    setTextColor(&label, disabledControlTextColor());
    EXPECT_EQ(textColor(&label), ControlColor::DisabledControlText);
    setTextColor(&label, controlTextColor());
    EXPECT_EQ(textColor(&label), ControlColor::ControlText);
}

TEST(ControlColorTest, FollowsTheChangeFromLightToDark)
{
    QLabel label;
    setTextColor(&label, disabledControlTextColor());
    QPalette dark;
    dark.setColor(QPalette::PlaceholderText, QColor(140, 140, 140));
    label.setPalette(dark);
    EXPECT_EQ(label.palette().color(label.foregroundRole()), QColor(140, 140, 140));
    EXPECT_EQ(textColor(&label), ControlColor::DisabledControlText);
}

TEST(DisclosureButtonTest, TurnsItsArrowWithItsStateHoweverItCameToBe)
{
    DisclosureButton button;
    EXPECT_TRUE(button.isCheckable());
    EXPECT_EQ(button.arrowType(), Qt::RightArrow);
    button.setChecked(true);
    EXPECT_EQ(button.arrowType(), Qt::DownArrow);
    button.click();
    EXPECT_EQ(button.arrowType(), Qt::RightArrow);
}

TEST(DisclosureButtonTest, PointsAtTheTextAlsoWhereItIsWrittenFromTheRight)
{
    DisclosureButton button;
    button.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(button.arrowType(), Qt::LeftArrow);
    button.setChecked(true);
    EXPECT_EQ(button.arrowType(), Qt::DownArrow);
}

TEST(DisclosureButtonTest, WorksWithTheSpaceBar)
{
    DisclosureButton button;
    button.show();
    button.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&button));
    button.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_TRUE(button.isChecked());
}

TEST(DisclosureButtonTest, LooksFoldedAndUnfolded)
{
    DisclosureButton button;
    button.resize(22, 22);
    const QImage folded = button.grab().toImage();
    button.setChecked(true);
    EXPECT_NE(button.grab().toImage(), folded);
}

struct ElideCase
{
    const char *behaviour;
    QString text;
    int characters; ///< the width, in widths of the letter n
    QString tip;    ///< null: the text is shown whole
};

class Elided : public testing::TestWithParam<ElideCase>
{};

const ElideCase kElideCases[] = {
    {"ShortTextIsWhole", u"nnnn"_s, 6, QString()},
    {"LongTextIsCut", u"nnnnnnnnnnnn: "_s, 6, u"nnnnnnnnnnnn:"_s},
    {"MarkupIsShown", u"<b>n & n</b>"_s, 40, QString()},
    {"MarkupIsShownInTheTip", u"nnnnnnnnn<b>&%1"_s, 6, u"nnnnnnnnn<b>&%1"_s},
};

TEST_P(Elided, ShowsWhatFits)
{
    CaptionLabel label;
    label.setText(GetParam().text);
    label.resize(GetParam().characters * label.fontMetrics().horizontalAdvance(u'n') + 4, 20);
    EXPECT_EQ(label.wholeTextTip(), GetParam().tip);
    const QString shown = label.shownText();
    if (GetParam().tip.isNull()) {
        EXPECT_EQ(shown, GetParam().text);
    } else {
        EXPECT_TRUE(shown.endsWith(u'…')) << shown.toStdString();
        EXPECT_TRUE(GetParam().text.startsWith(shown.chopped(1))) << shown.toStdString();
    }
    EXPECT_EQ(label.text(), GetParam().text);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

INSTANTIATE_TEST_SUITE_P(Cases, Elided, testing::ValuesIn(kElideCases), CaseName());

TEST(CaptionLabelTest, AsksForTheWidthOfATextOfOrdinaryLength)
{
    CaptionLabel label;
    label.setText(u"Tray:"_s);
    EXPECT_EQ(label.sizeHint().width(), label.fontMetrics().horizontalAdvance(u"Tray:"_s));
    label.setText(QString(500, u'n'));
    EXPECT_EQ(label.sizeHint().width(), 40 * label.fontMetrics().averageCharWidth());
    EXPECT_EQ(label.minimumSizeHint(), label.sizeHint());
}

TEST(CaptionLabelTest, GivesItsControlTheFocusByItsMnemonic)
{
    QWidget window;
    auto *caption = new CaptionLabel(&window);
    auto *other = new QPushButton(&window);
    auto *control = new QPushButton(&window);
    caption->setBuddy(control);
    setLabelText(caption, u"Media Type: "_s);
    caption->setMnemonic(u"Media &Type: "_s);
    EXPECT_EQ(caption->text(), u"Media Type: "_s);
    EXPECT_EQ(caption->sizeHint().width(),
              caption->fontMetrics().horizontalAdvance(u"Media Type: "_s));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    QTest::keyClick(&window, Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(control->hasFocus());
    other->setFocus();
    setLabelText(caption, u"Paper: "_s);
    QTest::keyClick(&window, Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(other->hasFocus()) << "another text has no mnemonic yet";
}

TEST(CaptionLabelTest, HasRoomForALetterBehindItsText)
{
    CaptionLabel caption;
    setLabelText(&caption, u"用紙種類: "_s);
    const int before = caption.sizeHint().width();
    caption.setMnemonic(u"用紙種類(&M): "_s);
    EXPECT_EQ(caption.sizeHint().width(),
              before + caption.fontMetrics().horizontalAdvance(u"(M)"_s));
    EXPECT_EQ(caption.text(), u"用紙種類: "_s);
}

TEST(CaptionLabelTest, GivesTheSelectedCellOfAGroupTheFocus)
{
    QWidget window;
    auto *caption = new CaptionLabel(&window);
    auto *other = new QPushButton(&window);
    auto *matrix = new RadioMatrix(&window);
    matrix->setNumberOfRows(3);
    for (int row = 0; row < 3; ++row)
        matrix->setCell(row, QString::number(row), QString::number(row));
    matrix->selectObject(u"1"_s);
    caption->setBuddy(matrix);
    setLabelText(caption, u"Matching: "_s);
    caption->setMnemonic(u"&Matching: "_s);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    QTest::keyClick(&window, Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), matrix->findChildren<QRadioButton *>()[1]);
}

TEST(CaptionLabelTest, TakesAnAmpersandForWhatItIs)
{
    QWidget window;
    auto *caption = new CaptionLabel(&window);
    auto *other = new QPushButton(&window);
    auto *control = new QPushButton(&window);
    caption->setBuddy(control);
    setLabelText(caption, u"Fast &Fine: "_s);
    EXPECT_EQ(caption->text(), u"Fast &Fine: "_s);
    EXPECT_EQ(caption->shownText(), u"Fast &Fine: "_s);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(other->hasFocus());
}

TEST(CaptionLabelTest, PaintsWithTheTextColourItIsGiven)
{
    CaptionLabel label;
    label.setText(u"nnnn"_s);
    label.resize(80, 20);
    const QImage ordinary = label.grab().toImage();
    setTextColor(&label, disabledControlTextColor());
    EXPECT_NE(label.grab().toImage(), ordinary);
    label.setText(QString());
    EXPECT_NE(label.grab().toImage(), ordinary);
}

TEST(KeyWindowTest, IsNoneAtFirst)
{
    EXPECT_EQ(keyWindow(), nullptr);
    EXPECT_FALSE(keyWindowHeight().has_value());
}

TEST(KeyWindowTest, HasTheHeightOfItsFrame)
{
    QWidget window;
    window.resize(300, 420);
    setKeyWindow(&window);
    EXPECT_EQ(keyWindow(), &window);
    EXPECT_EQ(keyWindowHeight(), 420.0);
    setKeyWindow(nullptr);
    EXPECT_EQ(keyWindow(), nullptr);
}

TEST(KeyWindowTest, IsNoneOnceItIsDestroyed)
{
    auto window = std::make_unique<QWidget>();
    setKeyWindow(window.get());
    window.reset();
    EXPECT_EQ(keyWindow(), nullptr);
    EXPECT_FALSE(keyWindowHeight().has_value());
}

TEST(SizeWatchTest, TellsWhenTheWindowComesOnScreenAndWhenItsHeightChanges)
{
    QWidget window;
    window.resize(300, 300);
    auto *view = new QWidget(&window);
    auto *watch = new SizeWatch(view);
    QSignalSpy fired(watch, &SizeWatch::fired);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_GE(fired.size(), 1);
    fired.clear();
    window.resize(300, 400);
    EXPECT_EQ(fired.size(), 1) << "taller";
    window.resize(350, 400);
    EXPECT_EQ(fired.size(), 1) << "wider alone";
    window.resize(300, 300);
    EXPECT_EQ(fired.size(), 2) << "narrower and lower";
}

TEST(SizeWatchTest, TellsNothingWhileItIsHidden)
{
    QWidget window;
    window.resize(300, 300);
    auto *view = new QWidget(&window);
    auto *watch = new SizeWatch(view);
    window.show();
    view->hide();
    QSignalSpy fired(watch, &SizeWatch::fired);
    window.resize(300, 400);
    EXPECT_TRUE(fired.isEmpty());
}

TEST(SizeWatchTest, FollowsItsViewIntoAnotherWindow)
{
    QWidget first;
    QWidget second;
    auto *view = new QWidget(&first);
    auto *watch = new SizeWatch(view);
    first.resize(300, 300);
    second.resize(300, 300);
    first.show();
    second.show();
    view->setParent(&second);
    view->show();
    QSignalSpy fired(watch, &SizeWatch::fired);
    first.resize(300, 400);
    EXPECT_TRUE(fired.isEmpty());
    second.resize(300, 400);
    EXPECT_EQ(fired.size(), 1);
}

} // namespace
