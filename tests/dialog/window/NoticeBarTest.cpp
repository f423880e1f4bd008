#include "dialog/window/NoticeBar.h"
#include "dialog/window/NoticeLabel.h"
#include "dialog/window/NoticeSign.h"
#include "tests/support/QStringPrinting.h"

#include <QtGui/QHelpEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage signOf(NoticeBar &bar, NoticeBar::Kind kind)
{
    bar.tell(kind, u"A sentence."_s);
    return bar.findChild<NoticeSign *>()->grab().toImage();
}

TEST(NoticeBar, HasASignOfItsOwnForEachKind)
{
    NoticeBar bar;
    const QImage information = signOf(bar, NoticeBar::Kind::Information);
    const QImage warning = signOf(bar, NoticeBar::Kind::Warning);
    const QImage error = signOf(bar, NoticeBar::Kind::Error);
    EXPECT_NE(information, warning);
    EXPECT_NE(warning, error);
    EXPECT_NE(error, information);
    EXPECT_EQ(signOf(bar, NoticeBar::Kind::Information), information);
}

TEST(NoticeBar, HasItsRoomWhetherOrNotThereIsAnythingToTell)
{
    NoticeBar bar;
    bar.resize(500, bar.sizeHint().height());
    bar.show();
    const int room = bar.sizeHint().height();
    const int lines = 2 * bar.fontMetrics().lineSpacing();
    EXPECT_GE(room, lines);
    bar.tell(NoticeBar::Kind::Error, QString(5000, u'x'), {{u"retryButton"_s, u"Retry"_s, [] {}}});
    EXPECT_EQ(bar.sizeHint().height(), room);
    EXPECT_EQ(bar.minimumSizeHint().height(), room);
    bar.clear();
    EXPECT_EQ(bar.sizeHint().height(), room);
    EXPECT_FALSE(bar.isHidden());
    EXPECT_EQ(bar.sentence(), QString());
}

TEST(NoticeBar, ShowsTwoLinesAndTellsTheWholeSentence)
{
    NoticeBar bar;
    bar.resize(400, bar.sizeHint().height());
    bar.show();
    const QString sentence = u"The printer does not allow it. "_s.repeated(9).trimmed();
    bar.tell(NoticeBar::Kind::Warning, sentence);
    QCoreApplication::processEvents();
    auto *label = bar.findChild<NoticeLabel *>();
    const QStringList lines = label->shownLines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(sentence.startsWith(lines[0]));
    EXPECT_TRUE(lines[1].endsWith(u'…'));
    for (const QString &line : lines)
        EXPECT_LE(label->fontMetrics().horizontalAdvance(line), label->width());
    EXPECT_EQ(bar.accessibleName(), sentence);
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), label->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(label, &event);
    EXPECT_TRUE(QToolTip::text().contains(u"The printer does not allow it. The printer"_s));
    bar.tell(NoticeBar::Kind::Warning, u"Short."_s);
    EXPECT_EQ(label->shownLines(), QStringList{u"Short."_s});
}

TEST(NoticeBar, BecomesHigherForALongerSentenceAsFarAsItMay)
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *bar = new NoticeBar;
    column->addStretch(1);
    column->addWidget(bar);
    window.resize(400, 400);
    window.show();
    const int line = bar->fontMetrics().lineSpacing();
    const int room = bar->height();
    bar->setMostHeight(4 * line);
    const QString sentence = u"The printer does not allow it. "_s.repeated(5).trimmed();
    bar->tell(NoticeBar::Kind::Warning, sentence);
    const auto *label = bar->findChild<NoticeLabel *>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return label->shownLines().size() == 3; }));
    EXPECT_EQ(label->shownLines().join(u' '), sentence);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->height() == room + line; }));
    bar->tell(NoticeBar::Kind::Warning, sentence.repeated(9));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->height() == room + 2 * line; }));
    EXPECT_TRUE(label->shownLines().last().endsWith(u'…'));
    bar->tell(NoticeBar::Kind::Warning, u"Short."_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->height() == room; }));
}

TEST(NoticeBar, PutsOffersBelowASentenceThatTheyWouldLeaveNoRoom)
{
    NoticeBar bar;
    bar.resize(400, bar.sizeHint().height());
    bar.show();
    const NoticeOffer shortOne{u"undoButton"_s, u"Undo"_s, [] {}};
    const NoticeOffer longOne{u"getButton"_s, u"Get It with Other Settings"_s, [] {}};
    bar.tell(NoticeBar::Kind::Warning, u"Short."_s, {shortOne});
    const auto below = [&](const char *name) {
        const auto *button = bar.findChild<QPushButton *>(QLatin1String(name));
        return button->mapTo(&bar, QPoint()).y() >=
               bar.findChild<NoticeLabel *>()->geometry().bottom();
    };
    bar.resize(400, bar.sizeHint().height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !below("undoButton"); }));
    bar.tell(NoticeBar::Kind::Warning, u"Short."_s, {shortOne, longOne});
    bar.resize(400, bar.sizeHint().height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return below("undoButton") && below("getButton"); }));
}

TEST(NoticeBar, OffersWhatMayHelpAsAButton)
{
    NoticeBar bar;
    bar.show();
    int wanted = 0;
    const NoticeOffer retry{u"retryButton"_s, u"A & B"_s, [&] {
                                ++wanted;
                                bar.tell(NoticeBar::Kind::Information, u"Asking."_s);
                            }};
    const auto button = [&] { return bar.findChild<QPushButton *>(u"retryButton"_s); };
    bar.tell(NoticeBar::Kind::Error, u"Away."_s, {retry});
    ASSERT_TRUE(button()->isVisible());
    EXPECT_EQ(button()->text(), u"&A && B"_s);
    QTest::mouseClick(button(), Qt::LeftButton);
    EXPECT_EQ(wanted, 1);
    EXPECT_EQ(button(), nullptr) << "it goes with what was told, in the midst of its own click";
    bar.tell(NoticeBar::Kind::Error, u"Away."_s, {retry});
    bar.clear();
    EXPECT_EQ(button(), nullptr);
}

TEST(NoticeBar, KeepsTheFocusWhenItsOffersChange)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *bar = new NoticeBar(&window);
    layout->addWidget(bar);
    auto *other = new QPushButton(u"Help"_s, &window);
    layout->addWidget(other);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto offerUndo = [&] {
        bar->tell(NoticeBar::Kind::Information, u"Done."_s, {{u"undoButton"_s, u"Undo"_s, [] {}}});
    };
    bar->tell(NoticeBar::Kind::Information, u"Why."_s,
              {{u"getItButton"_s, u"Get It"_s, offerUndo}});
    auto *getIt = bar->findChild<QPushButton *>(u"getItButton"_s);
    getIt->setFocus();
    QTest::keyClick(getIt, Qt::Key_Space);
    EXPECT_EQ(window.focusWidget(), bar->findChild<QPushButton *>(u"undoButton"_s));

    other->setFocus();
    bar->tell(NoticeBar::Kind::Information, u"Why."_s,
              {{u"getItButton"_s, u"Get It"_s, offerUndo}});
    EXPECT_EQ(window.focusWidget(), other);
}

TEST(NoticeBar, KeepsTheButtonOfAnOfferThatLooksAlikeAndTakesTheNewestOne)
{
    NoticeBar bar;
    bar.show();
    QStringList taken;
    const auto offer = [&](const QString &what) {
        return NoticeOffer{u"undoButton"_s, u"Undo"_s, [&taken, what] { taken += what; }};
    };
    bar.tell(NoticeBar::Kind::Information, u"Glossy."_s, {offer(u"first"_s)});
    auto *button = bar.findChild<QPushButton *>(u"undoButton"_s);
    bar.tell(NoticeBar::Kind::Warning, u"Plain."_s, {offer(u"second"_s)});
    EXPECT_EQ(bar.findChild<QPushButton *>(u"undoButton"_s), button);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(taken, QStringList{u"second"_s});
}

TEST(NoticeBar, BreaksItsSentenceAnewForAnotherFont)
{
    NoticeBar bar;
    bar.resize(400, bar.sizeHint().height());
    bar.show();
    bar.tell(NoticeBar::Kind::Warning, u"The printer does not allow it today."_s);
    const auto *label = bar.findChild<NoticeLabel *>();
    EXPECT_EQ(label->shownLines().size(), 1);
    QFont large = bar.font();
    large.setPointSize(2 * large.pointSize());
    bar.setFont(large);
    EXPECT_EQ(label->shownLines().size(), 2);
}

TEST(NoticeSign, IsAMarkInACircleOfItsColor)
{
    NoticeSign sign;
    for (const auto mark :
         {NoticeSign::Mark::LetterI, NoticeSign::Mark::Exclamation, NoticeSign::Mark::Cross}) {
        sign.setSign(mark, Qt::darkGreen);
        const QImage painted = sign.grab().toImage();
        const QPoint right(painted.width() - 2, painted.height() / 2);
        EXPECT_EQ(painted.pixelColor(right), QColor(Qt::darkGreen));
        EXPECT_NE(painted.pixelColor(0, 0), QColor(Qt::darkGreen));
        int white = 0;
        for (int y = 0; y < painted.height(); ++y)
            for (int x = 0; x < painted.width(); ++x)
                white += painted.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
        EXPECT_GT(white, 0);
    }
}

} // namespace
