#include "dialog/window/PrinterPopUp.h"

#include "dialog/window/SearchList.h"
#include "dialog/window/SearchablePopUp.h"
#include "tests/support/QStringPrinting.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QList<Destination> printers(int count)
{
    QList<Destination> made;
    for (int number = 1; number <= count; ++number)
        made += Destination{.name = {u"p%1"_s.arg(number, 2, 10, QLatin1Char('0')), {}},
                            .location = u"Room %1"_s.arg(100 + number)};
    return made;
}

/// The pop-up on a screen, with the second of its printers open.
class Printers : public testing::Test
{
protected:
    void show(const QList<Destination> &list)
    {
        m_window.setLayout(m_printers.newRow());
        m_printers.setCurrent({u"p02"_s, {}});
        m_printers.setDestinations(list);
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        QObject::connect(&m_printers, &PrinterPopUp::picked, &m_printers,
                         [this](const QueueName &name) { m_picked += textOf(name); });
    }

    PopUpButton *popup() { return m_printers.popup(); }
    QString state() { return m_window.findChild<QLabel *>(u"printerState"_s)->text(); }

    QStringList titles()
    {
        QStringList all;
        for (int index = 0; index < popup()->count(); ++index)
            all += popup()->itemText(index);
        return all;
    }

    QString detail(const QString &key)
    {
        return popup()
            ->itemData(popup()->indexOfRepresentedObject(key), PopUpButton::kDetailRole)
            .toString();
    }

    /// Opens the long list with a click, and gives it.
    SearchList *open()
    {
        QTest::mouseClick(popup(), Qt::LeftButton);
        auto *list = m_window.findChild<SearchList *>();
        EXPECT_TRUE(list && QTest::qWaitFor([&] { return list->isVisible(); }));
        return list;
    }

    static QStringList found(SearchList *list)
    {
        QStringList rows;
        const auto *model = list->findChild<QListView *>(u"searchRows"_s)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            rows += model->index(row, 0).data().toString();
        return rows;
    }

    QWidget m_window;
    PrinterPopUp m_printers{&m_window};
    QStringList m_picked;
};

TEST_F(Printers, HaveTheirPlaceAndTheirStateInTheRows)
{
    QList<Destination> list = printers(3);
    list[0].reasons = {u"media-empty-error"_s};
    list[2].location.clear();
    list[2].isPrinting = true;
    show(list);
    EXPECT_EQ(detail(u"p01"_s), u"Room 101 · Error: Out of paper"_s);
    EXPECT_EQ(detail(u"p02"_s), u"Room 102 · Ready"_s);
    EXPECT_EQ(detail(u"p03"_s), u"Printing"_s);
    EXPECT_EQ(popup()->itemData(1, Qt::AccessibleTextRole).toString(), u"p02, Room 102 · Ready"_s);
    EXPECT_EQ(state(), u"Room 102"_s);
}

TEST_F(Printers, AreRefreshedWithoutMovingTheSelection)
{
    show(printers(3));
    QList<Destination> list = printers(4);
    list.prepend({.name = {u"a"_s, {}}});
    list[2].isStopped = true;
    list[2].stateMessage = u"Ink <b>out</b>"_s;
    m_printers.setDestinations(list);
    EXPECT_EQ(titles(), (QStringList{u"a"_s, u"p01"_s, u"p02"_s, u"p03"_s, u"p04"_s}));
    EXPECT_EQ(popup()->selectedObject(), u"p02"_s);
    EXPECT_EQ(state(), u"Stopped: jobs wait · Ink <b>out</b>"_s);
    EXPECT_EQ(m_picked, QStringList());
}

TEST_F(Printers, KeepTheRowsOfAnOpenListUntilItCloses)
{
    show(printers(3));
    QTest::mouseClick(popup(), Qt::LeftButton);
    QAbstractItemView *list = popup()->view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list->isVisible(); }));
    QList<Destination> newer = printers(4);
    newer.removeFirst();
    newer[1].isStopped = true;
    m_printers.setDestinations(newer);
    EXPECT_EQ(titles(), (QStringList{u"p01"_s, u"p02"_s, u"p03"_s}));
    EXPECT_EQ(detail(u"p03"_s), u"Room 103 · Stopped: jobs wait"_s) << "its state is fresh";
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return titles().size() == 3 && titles()[0] == u"p02"_s; }));
    EXPECT_EQ(titles(), (QStringList{u"p02"_s, u"p03"_s, u"p04"_s}));
    EXPECT_EQ(popup()->selectedObject(), u"p02"_s);
}

TEST_F(Printers, ThatAreGoneAreSaidAndStayChosen)
{
    show(printers(3));
    EXPECT_FALSE(m_printers.isCurrentGone());
    m_printers.setDestinations({printers(3)[0]});
    EXPECT_TRUE(m_printers.isCurrentGone());
    EXPECT_EQ(popup()->selectedObject(), u"p02"_s);
    EXPECT_EQ(state(), u"No longer on the print server"_s);
    m_printers.setDestinations(printers(3));
    EXPECT_FALSE(m_printers.isCurrentGone());
    EXPECT_EQ(state(), u"Room 102"_s);
}

TEST_F(Printers, ThatTheServerNeverListedAreNotGone)
{
    m_printers.setCurrent({u"hidden"_s, {}});
    m_printers.setDestinations(printers(3));
    EXPECT_FALSE(m_printers.isCurrentGone());
}

TEST_F(Printers, AreListedAgainAfterAFailure)
{
    show(printers(2));
    m_printers.setListFailed();
    EXPECT_EQ(state(), u"The other printers cannot be listed"_s);
    m_printers.setDestinations(printers(2));
    EXPECT_EQ(state(), u"Room 102"_s);
}

TEST_F(Printers, OfAFewHaveAnOrdinaryList)
{
    show(printers(10));
    QTest::mouseClick(popup(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return popup()->view()->isVisible(); }));
    EXPECT_EQ(m_window.findChild<SearchList *>(), nullptr);
}

TEST_F(Printers, OfMoreThanTenAreSearchedByNamePlaceAndState)
{
    QList<Destination> list = printers(30);
    list[6].reasons = {u"media-empty-error"_s};
    list[7].reasons = {u"media-empty-error"_s};
    show(list);
    SearchList *search = open();
    EXPECT_EQ(found(search).size(), 30);
    auto *field = search->findChild<QLineEdit *>();
    QTest::keyClicks(field, u"room paper"_s);
    EXPECT_EQ(found(search), (QStringList{u"p07"_s, u"p08"_s}));
    QTest::keyClick(field, Qt::Key_Down);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_FALSE(search->isVisible());
    EXPECT_EQ(m_picked, QStringList{u"p08"_s});
    EXPECT_EQ(popup()->selectedObject(), u"p08"_s);
}

TEST_F(Printers, OfMoreThanTenAreSearchedByTypingOnTheClosedList)
{
    show(printers(30));
    popup()->setFocus();
    QTest::keyClick(popup(), Qt::Key_1);
    auto *search = m_window.findChild<SearchList *>();
    ASSERT_NE(search, nullptr);
    QTest::keyClicks(search->findChild<QLineEdit *>(), u"17"_s);
    EXPECT_EQ(found(search), QStringList{u"p17"_s});
    QTest::keyClick(search->findChild<QLineEdit *>(), Qt::Key_Escape);
    EXPECT_FALSE(search->isVisible());
    EXPECT_EQ(m_picked, QStringList());
    EXPECT_EQ(popup()->selectedObject(), u"p02"_s);
}

TEST_F(Printers, OfAFoundListArePickedWithAClick)
{
    show(printers(30));
    SearchList *search = open();
    auto *list = search->findChild<QListView *>();
    QTest::keyClicks(search->findChild<QLineEdit *>(), u"p2"_s);
    const QModelIndex second = list->model()->index(1, 0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(second).center());
    EXPECT_EQ(m_picked, QStringList{u"p21"_s});
}

TEST_F(Printers, ThatAreNotFoundPickNothing)
{
    show(printers(30));
    SearchList *search = open();
    QTest::keyClicks(search->findChild<QLineEdit *>(), u"none"_s);
    EXPECT_EQ(found(search), QStringList());
    const auto *nothing = search->findChild<QLabel *>(u"searchNothing"_s);
    EXPECT_TRUE(nothing->isVisible());
    EXPECT_EQ(nothing->text(), u"Nothing was found."_s);
    EXPECT_FALSE(search->findChild<QListView *>()->isVisible());
    auto *words = QAccessible::queryAccessibleInterface(search->findChild<QLineEdit *>());
    EXPECT_EQ(words->text(QAccessible::Description), u"Nothing was found."_s);
    QTest::keyClick(search->findChild<QLineEdit *>(), Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_FALSE(nothing->isVisible());
    EXPECT_TRUE(search->findChild<QListView *>()->isVisible());
    EXPECT_EQ(words->text(QAccessible::Description), u"Search"_s);
    QTest::keyClicks(search->findChild<QLineEdit *>(), u"none"_s);
    QTest::keyClick(search->findChild<QLineEdit *>(), Qt::Key_Return);
    EXPECT_FALSE(search->isVisible());
    EXPECT_EQ(m_picked, QStringList());
}

TEST_F(Printers, KeepTheRowsOfASearchUntilItCloses)
{
    show(printers(30));
    SearchList *search = open();
    m_printers.setDestinations(printers(40));
    EXPECT_EQ(found(search).size(), 30);
    search->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return popup()->count() == 40; }));
    EXPECT_EQ(popup()->selectedObject(), u"p02"_s);
}

} // namespace
