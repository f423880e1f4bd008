#include "dialog/window/PrinterPopUp.h"
#include "platform/toolkit/Alert.h"
#include "platform/toolkit/PlainText.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/PPDSource.h"
#include "tests/support/PlainTextWalk.h"
#include "tests/support/TrapFolder.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QTextDocument>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QListWidget>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

/// As a text of a PPD is written: the characters that end it there are hexadecimal.
QString inPPD(QString text)
{
    return text.replace(u"<"_s, u"<3C]"_s)
        .replace(u">"_s, u"<3E>"_s)
        .replace(u"<3C]"_s, u"<3C>"_s)
        .replace(u"\x1b"_s, u"<1B>"_s)
        .replace(u"\u202e"_s, u"<E280AE>"_s);
}

/// The full sample printer, in which the texts of groups, options, choices, papers and the names of
/// the printer are `text`, and two options exclude each other.
QByteArray foreignPPD(const QString &text)
{
    static const QRegularExpression texts(
        uR"(^(\*(?:OpenGroup: \w+|OpenUI \*\w+|\w+ [\w.]+)/)[^:\n]*)"_s,
        QRegularExpression::MultilineOption);
    static const QRegularExpression names(uR"(^(\*(?:Short)?NickName: ").*(?="$))"_s,
                                          QRegularExpression::MultilineOption);
    static const QRegularExpression model(uR"(^(\*ModelName: "[^"]*))"_s,
                                          QRegularExpression::MultilineOption);
    QString ppd = QString::fromUtf8(sampleText(u"velkaro-px-t900"_s));
    ppd.replace(texts, u"\\1"_s + inPPD(text)).replace(names, u"\\1"_s + text);
    ppd.replace(model, u"\\1"_s + text).replace(u"ISOLatin1"_s, u"UTF-8"_s);
    return ppd.toUtf8() + "*UIConstraints: *Duplex DuplexTumble *VKMediaType Transparencies\n"
                          "*UIConstraints: *VKMediaType Transparencies *Duplex DuplexTumble\n";
}

/// The dialog on a printer, and with a document, whose every text is markup that opens a file.
class ForeignText : public DialogWindowFixture, public testing::WithParamInterface<bool>
{
protected:
    ForeignText()
    {
        m_line.ppd = m_folder.filePath(u"foreign.ppd"_s);
        writeFile(m_line.ppd, foreignPPD(text()));
        // No file name has a slash; markup takes it from the current folder.
        QDir::setCurrent(m_trap.path());
        m_line.files = {m_folder.filePath(
            PlainTextWalk::foreignText(QFileInfo(opened()).fileName()) + u".ps"_s)};
        writeFile(m_line.files[0], "%!PS\n");
        EXPECT_TRUE(Qt::mightBeRichText(text()));
    }

    ~ForeignText() override
    {
        m_window.reset();
        EXPECT_FALSE(m_trap.wasOpened()) << "a text has opened a file";
        QDir::setCurrent(m_former);
    }

    QString opened() const { return GetParam() ? m_trap.fifo() : m_trap.picture(); }
    QString text() const { return PlainTextWalk::foreignText(opened()); }

    void look()
    {
        QCoreApplication::processEvents(); // what is on screen is painted
        m_walk.look();
    }

    /// Shows each tab, with what it has folded away and each page of its list.
    void lookAtAllTabs()
    {
        auto *bar = part<QTabWidget>("parts");
        for (int tab = 0; tab < bar->count(); ++tab) {
            bar->setCurrentIndex(tab);
            look();
            for (auto *fold :
                 bar->currentWidget()->findChildren<QAbstractButton *>(u"optionButton"_s))
                fold->click();
            look();
            for (auto *list : bar->currentWidget()->findChildren<QListWidget *>())
                for (int row = 0; row < list->count(); ++row) {
                    list->setCurrentRow(row);
                    look();
                }
        }
    }

    /// Looks at the window that `show` opens and waits in, then rejects it.
    template <typename Window> void lookAtModal(const std::function<void()> &show)
    {
        bool wasThere = false;
        QTimer::singleShot(0, m_window.get(), [&] {
            auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
            wasThere = window;
            look();
            if (window)
                window->reject();
        });
        show();
        EXPECT_TRUE(wasThere);
    }

    const QString m_former = QDir::currentPath();
    TrapFolder m_trap;
    PlainTextWalk m_walk;
};

TEST_P(ForeignText, IsPlainInEveryTab)
{
    open();
    ASSERT_EQ(m_window->state(), DialogWindow::State::Ready) << notice().toStdString();
    lookAtAllTabs();
    for (const char *place :
         {"CaptionLabel documentsLabel", "SearchablePopUp printerPopup",
          "SearchablePopUp paperPopup", "PopUpButton DuplexPopup", "PopUpButton VKOutputPopup",
          "QLabel ", // of a row of Page Setup or of the summary
          "CaptionLabel mediaTypeLabel", "PopUpButton mediaTypePopup",
          "QListWidget advancedTableView", "tip of CaptionLabel mediaTypeLabel",
          "CaptionLabel brightnessLabel"})
        EXPECT_TRUE(m_walk.seen().contains(QLatin1String(place))) << place;
    if (HasFailure())
        for (const QString &place : m_walk.seen())
            std::puts(qPrintable(place));
}

TEST_P(ForeignText, IsPlainInTheRowsOfPageSetupAndOfTheSummary)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    for (const char *page : {"pageSetupPane", "summaryPane"}) {
        if (QLatin1String(page) == "summaryPane"_L1) {
            EXPECT_TRUE(m_window->showPart(u"summary"_s));
        }
        int rows = 0;
        for (const QLabel *label : part<QWidget>(page)->findChildren<QLabel *>())
            rows += label->text().contains(u"<img"_s) ? 1 : 0;
        EXPECT_GE(rows, 2) << page;
    }
    look();
}

TEST_P(ForeignText, IsPlainInTheNoticeOfAConflict)
{
    open();
    pick("mediaTypePopup", u"Transparencies"_s);
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("DuplexPopup", u"DuplexTumble"_s);
    EXPECT_TRUE(notice().contains(u"<img src="_s + opened())) << notice().toStdString();
    look();
    EXPECT_TRUE(m_walk.seen().contains(u"NoticeLabel noticeLabel"_s));
    EXPECT_TRUE(m_walk.seen().contains(u"NoticeBar noticeBar"_s)) << "its accessible name";
}

TEST_P(ForeignText, IsPlainInAlerts)
{
    open();
    const QString shown = displayText(text());
    const AlertContent content{AlertStyle::Warning,  QString(), shown, shown,
                               {shown, u"Cancel"_s}, true,      shown};
    AlertAnswers answers({[&](const ShownAlert &alert) {
                              look();
                              alert.press(1);
                          },
                          [&](const ShownAlert &alert) {
                              look();
                              alert.press(1);
                          }});
    EXPECT_EQ(runAlert(content).button, 1);
    QObject context;
    beginAlertSheet(content, &context, [](const AlertResult &) {});
    answers.take();
    EXPECT_TRUE(m_walk.seen().contains(u"QLabel qt_msgbox_label"_s));
    EXPECT_TRUE(m_walk.seen().contains(u"QLabel qt_msgbox_informativelabel"_s));
    EXPECT_TRUE(m_walk.seen().contains(u"QPushButton "_s));
    EXPECT_TRUE(m_walk.seen().contains(u"QCheckBox "_s));
}

TEST_P(ForeignText, IsPlainInTheAlertOfAVeto)
{
    m_line.paper = u"120x120mm"_s;
    open();
    AlertAnswers answers({[&](const ShownAlert &alert) {
        look();
        alert.press(static_cast<int>(alert.buttons.size()) - 1);
    }});
    click("printButton");
    EXPECT_EQ(answers.take().size(), 1U);
}

TEST_P(ForeignText, IsPlainInTheFileDialogs)
{
    m_line.output = QString();
    open();
    lookAtModal<QFileDialog>([this] { click("saveButton"); });
    lookAtModal<QFileDialog>([this] { click("chooseButton"); });
}

TEST_P(ForeignText, IsPlainInTheListOfPrinters)
{
    const QString shown = text();
    QWidget window;
    PrinterPopUp printers(&window);
    window.setLayout(printers.newRow());
    printers.setCurrent({u"p<b>A&amp;B"_s, QString()});
    printers.setDestinations({{{u"p<b>A&amp;B"_s, QString()}, shown, shown},
                              {{u"q<b>A&amp;B"_s, u"<b>"_s}, shown, shown}});
    window.show();
    look();
    EXPECT_TRUE(m_walk.seen().contains(u"SearchablePopUp printerPopup"_s));
    EXPECT_TRUE(m_walk.seen().contains(u"CaptionLabel printerState"_s));
}

// The test itself: what it looks for is seen where it is.
TEST_P(ForeignText, IsFoundWhereALabelGuesses)
{
    QLabel guessing(displayText(text()));
    guessing.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_trap.wasOpened());
    EXPECT_NE(guessing.textFormat(), Qt::PlainText);
}

INSTANTIATE_TEST_SUITE_P(Opened, ForeignText, testing::Bool(), [](const auto &isFifo) {
    return std::string(isFifo.param ? "AFifo" : "APicture");
});

} // namespace
