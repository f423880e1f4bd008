#pragma once

#include "dialog/replay/Recorder.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/LayoutPane.h"
#include "dialog/window/PageSetupPane.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabWidget>

#include <gtest/gtest.h>

/// The dialog on a PPD file, its job going to a file.
class DialogWindowFixture : public testing::Test
{
protected:
    static constexpr int kTimeout = 20000; // ms

    DialogWindowFixture()
    {
        m_line.ppd = samplePPD(QStringLiteral("velkaro-px-t900"));
        m_line.plugIn = builtBundle();
        m_line.output = m_folder.filePath(QStringLiteral("out.job"));
        m_line.files = {m_folder.filePath(QStringLiteral("Holiday & <b>.ps"))};
        writeFile(m_line.files[0], "%!PS\n");
    }

    void open()
    {
        m_window = std::make_unique<DialogWindow>(m_line);
        m_window->start();
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        waitForPrinter();
    }

    void waitForPrinter()
    {
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return m_window->state() != DialogWindow::State::Searching; }, kTimeout));
        QCoreApplication::processEvents(); // what the settings of the command line have put off
        // Tests use controls of parts that nobody has looked at.
        m_window->findChild<PageSetupPane *>()->fill();
        m_window->findChild<LayoutPane *>()->fill();
    }

    /// The same, noted in a script.
    void openRecorded()
    {
        m_line.record = m_folder.filePath(QStringLiteral("session.jsonl"));
        m_recorder = std::make_unique<Recorder>();
        ASSERT_TRUE(m_recorder->open(m_line.record, {}));
        m_window = std::make_unique<DialogWindow>(m_line);
        m_window->controller().addSessionHook(
            [this](HostSession &session) { return m_recorder->attach(session); });
        m_window->start();
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        waitForPrinter();
    }

    bool finishRecording()
    {
        m_window->closePrinter();
        const bool isWhole = m_recorder->finish().isGood();
        m_recorder.reset();
        return isWhole;
    }

    template <typename Widget> Widget *part(const char *name)
    {
        auto *found = m_window->findChild<Widget *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void click(const char *name) { QTest::mouseClick(part<QAbstractButton>(name), Qt::LeftButton); }

    /// Presses Print and waits for what becomes of it.
    void print()
    {
        click("printButton");
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return m_window->state() != DialogWindow::State::Sending; }, 20000));
    }

    void pick(const char *name, const QString &choice)
    {
        auto *popup = part<PopUpButton>(name);
        const int index = popup->indexOfRepresentedObject(choice);
        ASSERT_GE(index, 0) << choice.toStdString();
        popup->pick(index);
        QCoreApplication::processEvents();
    }

    /// The title as people read it.
    static QString plainTitle(QString title)
    {
        constexpr QChar kAmpersand(1);
        return title.replace(QLatin1String("&&"), kAmpersand)
            .remove(u'&')
            .replace(kAmpersand, u'&');
    }

    QStringList tabs()
    {
        QStringList titles;
        const auto *bar = part<QTabWidget>("parts");
        for (int index = 0; index < bar->count(); ++index)
            titles += plainTitle(bar->tabText(index));
        return titles;
    }

    /// Looks at the summary: its texts, title and value in turn.
    QStringList summary()
    {
        EXPECT_TRUE(m_window->showPart(QStringLiteral("summary")));
        QStringList texts;
        for (const QLabel *label : part<QWidget>("summaryPane")->findChildren<QLabel *>())
            if (label->objectName() != QLatin1String("summaryOrigin"))
                texts += label->text();
        return texts;
    }

    QString marked(const QString &keyword) { return markedChoice(m_window->job().ppd(), keyword); }
    QString notice() { return m_window->notice().sentence(); }

    QByteArray written() { return readFile(m_line.output); }

    QTemporaryDir m_folder;
    DialogWishes m_line;
    std::unique_ptr<Recorder> m_recorder; // outlives the window's session
    std::unique_ptr<DialogWindow> m_window;
};
