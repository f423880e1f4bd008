#pragma once

#include "dialog/window/DialogWindow.h"
#include "dialog/window/SearchList.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/PrintServerFixture.h"
#include "tests/support/LpoptionsFolder.h"

#include <QtCore/QAbstractProxyModel>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLineEdit>

#include <memory>

/// The real dialog on a queue of a real server, used with the mouse and the keyboard.
class Dialog : public PrintServerFixture
{
protected:
    static constexpr int kTimeout = 20000; // ms

    Dialog() { UserDefaults::standardUserDefaults().setFolder(QString()); }

    DialogWishes lineFor(const QString &address, const QString &queue)
    {
        DialogWishes line;
        line.server = address;
        line.queue = queue;
        line.plugIn = builtBundle();
        line.files = {pdf()};
        return line;
    }

    /// The dialog on the screen, when its printer has been found or not.
    std::unique_ptr<DialogWindow> open(const DialogWishes &line)
    {
        auto window = std::make_unique<DialogWindow>(line);
        window->start();
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        waitWhile(*window, DialogWindow::State::Searching);
        return window;
    }

    static void waitWhile(const DialogWindow &window, DialogWindow::State state)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.state() != state; }, kTimeout));
    }

    template <typename Widget> static Widget *part(const QWidget &window, const char *name)
    {
        auto *found = window.findChild<Widget *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    static void click(const QWidget &window, const char *button)
    {
        QTest::mouseClick(part<QAbstractButton>(window, button), Qt::LeftButton);
    }

    /// Opens the pop-up's list with a click and takes the item with Return.
    static void pick(const QWidget &window, const char *name, const QString &choice)
    {
        auto *popup = part<PopUpButton>(window, name);
        ASSERT_TRUE(popup->isVisible()) << name;
        const int index = popup->indexOfRepresentedObject(choice);
        ASSERT_GE(index, 0) << choice.toStdString();
        QTest::mouseClick(popup, Qt::LeftButton);
        if (const auto *search = popup->findChild<SearchList *>())
            pickFound(*search, index);
        else
            pickListed(popup->view(), index);
        ASSERT_EQ(popup->selectedObject(), choice);
    }

private:
    static void pickListed(QAbstractItemView *list, int row)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->isVisible(); }));
        list->setCurrentIndex(list->model()->index(row, 0));
        QTest::keyClick(list, Qt::Key_Return);
    }

    /// A list that is searched by typing leaves the keys to the words.
    static void pickFound(const SearchList &search, int row)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return search.isVisible(); }));
        auto *list = part<QAbstractItemView>(search, "searchRows");
        const auto *found = qobject_cast<const QAbstractProxyModel *>(list->model());
        list->setCurrentIndex(found->mapFromSource(found->sourceModel()->index(row, 0)));
        QTest::keyClick(part<QLineEdit>(search, "searchField"), Qt::Key_Return);
    }

    const LpoptionsFolder m_lpoptions; // no test starts from what another one printed with
};
