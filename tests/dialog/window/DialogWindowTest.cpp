#include "dialog/window/DialogWindow.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/pde/PPDText.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"
#include "tests/dialog/window/ClashingPPD.h"
#include "tests/endtoend/JobPrinting.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The dialog on a PPD file, its job going to a file.
class Window : public testing::Test
{
protected:
    Window()
    {
        m_line.ppd = samplePPD(u"velkaro-px-t900"_s);
        m_line.plugIn = builtBundle();
        m_line.output = m_folder.filePath(u"out.job"_s);
        m_line.files = {m_folder.filePath(u"Holiday & <b>.ps"_s)};
        QFile file(m_line.files[0]);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("%!PS\n");
    }

    void open()
    {
        m_window = std::make_unique<DialogWindow>(m_line);
        m_window->start();
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }

    template <typename Widget> Widget *part(const char *name)
    {
        auto *found = m_window->findChild<Widget *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void click(const char *name) { QTest::mouseClick(part<QAbstractButton>(name), Qt::LeftButton); }

    void pick(const char *name, const QString &choice)
    {
        auto *popup = part<PopUpButton>(name);
        const int index = popup->indexOfRepresentedObject(choice);
        ASSERT_GE(index, 0) << choice.toStdString();
        popup->pick(index);
        QCoreApplication::processEvents();
    }

    QStringList tabs()
    {
        QStringList titles;
        const auto *bar = part<QTabWidget>("parts");
        for (int index = 0; index < bar->count(); ++index)
            titles += bar->tabText(index);
        return titles;
    }

    QString marked(const QString &keyword) { return markedChoice(m_window->job().ppd(), keyword); }
    QString notice() { return m_window->notice().sentence(); }

    QByteArray written()
    {
        QFile file(m_line.output);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    CommandLine m_line;
    std::unique_ptr<DialogWindow> m_window;
};

TEST_F(Window, ShowsThePanelsBetweenPageSetupAndSummary)
{
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Print Settings"_s, u"Color Settings"_s,
                                   u"Summary"_s}));
    EXPECT_EQ(part<QTabWidget>("parts")->currentIndex(), 1);
    EXPECT_TRUE(part<QWidget>("mediaTypePopup")->isVisible());
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(keyWindow(), m_window.get());
}

TEST_F(Window, ShowsForeignTextsAsTheyStand)
{
    open();
    const auto *documents = part<QLabel>("documentsLabel");
    EXPECT_EQ(documents->textFormat(), Qt::PlainText);
    EXPECT_EQ(documents->text(), u"Holiday & <b>.ps"_s);
    EXPECT_EQ(part<QLabel>("noticeLabel")->textFormat(), Qt::PlainText);
    for (const QLabel *label : m_window->findChildren<QLabel *>())
        if (label->textFormat() != Qt::PlainText) {
            EXPECT_FALSE(label->text().contains(u'<')) << label->text().toStdString();
        }
}

TEST_F(Window, WritesTheJobThatWasPicked)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("paperPopup", u"A4.Fullbleed"_s);
    pick("scalePopup", u"A3"_s);
    click("landscapeButton");
    click("matchByApplicationButton");
    QTest::keyClicks(part<QLineEdit>("pagesField"), u"5, 1-2"_s);
    click("printButton");
    EXPECT_EQ(m_window->exitStatus(), ExitStatus::Done) << notice().toStdString();
    const QByteArray job = written();
    for (const char *line :
         {"Option: PageSize=A3\n", "Option: fit-to-page=true\n", "Option: VKMediaType=Glossy\n",
          "Option: orientation-requested=4\n", "Option: page-ranges=1-2,5\n",
          "Option: AP_ColorMatchingMode=AP_ApplicationColorMatching\n",
          "Document: 5 Holiday & <b>.ps\n"})
        EXPECT_TRUE(job.contains(line)) << line << job.toStdString();
}

TEST_F(Window, TakesNothingFromAPaneThatCannotBeUsed)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("paperPopup", u"Custom"_s);
    auto *width = part<QDoubleSpinBox>("customWidth");
    ASSERT_TRUE(width->isVisible());
    width->setValue(5);
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
    EXPECT_FALSE(part<QLabel>("customWidthWord")->text().isEmpty());
    width->setValue(210);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    EXPECT_TRUE(m_window->job().paper()->name.startsWith(u"Custom"_s));
    QTest::keyClicks(part<QLineEdit>("pagesField"), u"x"_s);
    EXPECT_EQ(part<QLabel>("pagesWord")->text(), u"Pages look like this: 1-3, 5"_s);
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
}

TEST_F(Window, ExplainsARefusedChoiceOfItsOwn)
{
    const ClashingPPD ppd;
    m_line.ppd = ppd.path();
    m_line.choices = {{u"VKMediaType"_s, u"Transparencies"_s}};
    open();
    ASSERT_EQ(marked(u"VKMediaType"_s), u"Transparencies"_s) << notice().toStdString();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("DuplexPopup", u"DuplexTumble"_s);
    EXPECT_EQ(marked(u"Duplex"_s), u"None"_s);
    EXPECT_EQ(part<PopUpButton>("DuplexPopup")->selectedObject(), u"None"_s);
    EXPECT_EQ(notice(), u"\"Two-Sided Printing: Short-Edge Binding\" cannot be chosen: the printer "
                        "does not allow it together with \"Media Type: Transparencies\"."_s);
    pick("DuplexPopup", u"DuplexNoTumble"_s);
    EXPECT_EQ(notice(), QString());
}

TEST_F(Window, ExplainsARefusedChoiceOfAPanel)
{
    const ClashingPPD ppd;
    m_line.ppd = ppd.path();
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("DuplexPopup", u"DuplexTumble"_s);
    part<QTabWidget>("parts")->setCurrentIndex(1);
    pick("mediaTypePopup", u"Transparencies"_s);
    EXPECT_NE(marked(u"VKMediaType"_s), u"Transparencies"_s);
    EXPECT_EQ(notice(), u"\"Media Type: Transparencies\" cannot be chosen: the printer does not "
                        "allow it together with \"Two-Sided Printing: Short-Edge Binding\"."_s);
}

TEST_F(Window, ShowsTheSettingsOfTheCommandLine)
{
    m_line.paper = u"A3"_s;
    open();
    EXPECT_EQ(part<PopUpButton>("paperPopup")->selectedObject(), u"A3"_s);

    m_line.paper = QString();
    m_line.choices = {{u"Duplex"_s, u"DuplexTumble"_s}, {u"copies"_s, u"3"_s}};
    open();
    EXPECT_EQ(part<PopUpButton>("DuplexPopup")->selectedObject(), u"DuplexTumble"_s);
    EXPECT_EQ(part<NumberField>("copiesField")->value(), 3);
}

TEST_F(Window, SummarizesTheWholeJob)
{
    m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}, {u"copies"_s, u"3"_s}};
    open();
    ASSERT_TRUE(m_window->showPart(u"summary"_s));
    QStringList texts;
    for (const QLabel *label : part<QWidget>("summaryPane")->findChildren<QLabel *>())
        texts += label->text();
    const QString all = texts.join(u'|');
    EXPECT_TRUE(all.startsWith(u"Page Setup|Paper|A4|Orientation|Portrait|Copies|3|Pages|All|"_s))
        << all.toStdString();
    EXPECT_TRUE(all.contains(u"|Print Settings|"_s)) << all.toStdString();
    EXPECT_TRUE(all.contains(u"|Media Type|Other Glossy Paper|"_s)) << all.toStdString();
    EXPECT_LT(all.indexOf(u"|Print Settings|"_s), all.indexOf(u"|Color Settings|"_s));
}

TEST_F(Window, TellsThePanelsWhenItsSizeChangesAndWhenItCloses)
{
    QStringList posted;
    const int observer = 0;
    open();
    const QWidget *view = m_window->shownPart();
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(
        &observer, [&](const Notification &) { posted += u"size"_s; },
        QLatin1String(kViewDidUpdateTrackingAreasNotification), view);
    center.addObserver(
        &observer, [&](const Notification &) { posted += u"close"_s; },
        QLatin1String(kWindowWillCloseNotification), static_cast<QWidget *>(m_window.get()));
    m_window->resize(m_window->width(), m_window->height() + 40);
    EXPECT_EQ(posted, QStringList{u"size"_s});
    m_window->reject();
    EXPECT_EQ(posted.last(), u"close"_s);
    EXPECT_EQ(m_window->job().session(), nullptr);
    EXPECT_EQ(keyWindow(), nullptr);
    center.removeObserver(&observer);
}

TEST_F(Window, GrowsAndShrinksWithAPanelThatUnfolds)
{
    open();
    const int folded = m_window->height();
    const int view = m_window->shownPart()->height();
    click("optionButton");
    QCoreApplication::processEvents();
    const int grownBy = m_window->shownPart()->height() - view;
    ASSERT_GT(grownBy, 0);
    EXPECT_GE(m_window->shownPart()->parentWidget()->height(), m_window->shownPart()->height());
    click("optionButton");
    QCoreApplication::processEvents();
    EXPECT_LE(m_window->height(), folded);
}

TEST_F(Window, WithoutAPlugInSaysSoAndPrintsWithItsOwnSettings)
{
    m_line.plugIn = m_folder.path();
    open();
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Summary"_s}));
    EXPECT_EQ(notice(), u"The plug-in %1 is incomplete: it has no readable Info.json. Install "
                        "Velkaro Print again."_s.arg(m_folder.path()));
    pick("paperPopup", u"A3"_s);
    click("printButton");
    EXPECT_EQ(m_window->exitStatus(), ExitStatus::Done);
    EXPECT_TRUE(written().contains("Option: PageSize=A3\n"));
}

TEST_F(Window, WithAPrinterOfAnotherKindSaysSo)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    QFile file(m_line.ppd);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
               "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"O.PPD\"\n"
               "*Product: \"(Other)\"\n*Manufacturer: \"Other\"\n*ModelName: \"Other\"\n"
               "*ShortNickName: \"Other\"\n*NickName: \"Other 1\"\n*PSVersion: \"(3010) 0\"\n"
               "*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: A4\n*PageSize A4/A4: \"\"\n"
               "*PageSize A5/A5: \"\"\n*CloseUI: *PageSize\n*DefaultPaperDimension: A4\n"
               "*PaperDimension A4: \"595 842\"\n*PaperDimension A5: \"420 595\"\n");
    file.close();
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Summary"_s}));
    EXPECT_EQ(notice(), u"This printer has none of the settings that the panels are for. It prints "
                        "with the settings of this dialog alone."_s);
    click("printButton");
    EXPECT_EQ(m_window->exitStatus(), ExitStatus::Done);
}

TEST_F(Window, WithAPPDThatCannotBeUsedSaysSo)
{
    m_line.ppd = m_line.files[0];
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Error);
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
}

TEST_F(Window, KeepsEverythingWhenTheFileCannotBeWritten)
{
    m_line.output = m_folder.filePath(u"nowhere/out.job"_s);
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    click("printButton");
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(notice(),
              u"The file %1 cannot be written: No such file or directory."_s.arg(m_line.output));
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(m_window->exitStatus(), ExitStatus::Cancelled);
}

TEST_F(Window, CanBeRecordedForReplay)
{
    m_line.record = m_folder.filePath(u"session.jsonl"_s);
    m_window = std::make_unique<DialogWindow>(m_line);
    ASSERT_TRUE(m_window->beginRecording());
    m_window->start();
    m_window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    pick("mediaTypePopup", u"Glossy"_s);
    m_window->reject();
    m_window.reset();
    QFile script(m_line.record);
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const QByteArray text = script.readAll();
    EXPECT_TRUE(text.contains("\"Glossy\"")) << text.toStdString();
    EXPECT_TRUE(text.contains("\"close\"")) << text.toStdString();
}

} // namespace
