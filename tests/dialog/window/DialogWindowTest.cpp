#include "dialog/host/PPDFile.h"
#include "dialog/work/BackgroundCall.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/NumberField.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/ClashingPPD.h"
#include "tests/support/PPDSource.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QProcess>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using Window = DialogWindowFixture;

TEST_F(Window, ShowsThePanelsBetweenPageSetupAndSummary)
{
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Print Settings"_s, u"Color Settings"_s,
                                   u"Layout & Job"_s, u"Summary"_s}));
    EXPECT_EQ(part<QTabWidget>("parts")->currentIndex(), 1);
    EXPECT_TRUE(part<QWidget>("mediaTypePopup")->isVisible());
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(keyWindow(), m_window.get());
}

TEST_F(Window, HasNoPanelsForAPrinterThatNoPlugInIsFor)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    m_line.plugIn = QString();
    writeFile(m_line.ppd, smallPrinter().attribute("Manufacturer", "Example").text());
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Printer Features"_s, u"Layout & Job"_s,
                                   u"Summary"_s}));
    EXPECT_EQ(notice(), QString());
    print();
    EXPECT_TRUE(m_window->outcome());
}

// libcups remembers for each thread how its last PPD was opened.
TEST_F(Window, ReadsThePPDOnAnotherThread)
{
    const QString bad = m_folder.filePath(u"bad.ppd"_s);
    writeFile(bad, "Hello\n");
    ASSERT_FALSE(openPPD(bad));
    m_window = std::make_unique<DialogWindow>(m_line);
    m_window->start();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Searching);
    EXPECT_EQ(notice(), u"Reading velkaro-px-t900.ppd…"_s);
    waitForPrinter();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(notice(), QString());
    int line = 0;
    EXPECT_EQ(ppdLastError(&line), PPD_MISSING_ASTERISK);
}

TEST_F(Window, RefusesAPipeForAPPDAtOnce)
{
    m_line.ppd = m_folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(m_line.ppd).constData(), 0600), 0);
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(notice(), m_line.ppd + u" is not a PPD file."_s);
    m_window->reject();
    EXPECT_EQ(m_window->outcome().faultKind(), FaultKind::PPD);
}

TEST_F(Window, MayBeClosedWhileThePPDIsRead)
{
    m_window = std::make_unique<DialogWindow>(m_line);
    m_window->start();
    m_window->show();
    m_window->reject();
    m_window.reset();
    EXPECT_TRUE(waitForBackgroundThreads(std::chrono::milliseconds(kTimeout)));
    QCoreApplication::processEvents(); // what the thread has left behind finds nobody
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
    click("borderlessButton");
    pick("scalingPopup", u"fill"_s);
    click("landscapeButton");
    click("matchByApplicationButton");
    QTest::keyClicks(part<QLineEdit>("pagesField"), u"5, 1-2"_s);
    print();
    EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
    const QByteArray job = written();
    for (const char *line : {"Option: PageSize=A4.Fullbleed\n", "Option: print-scaling=fill\n",
                             "Option: VKMediaType=Glossy\n", "Option: orientation-requested=4\n",
                             "Option: page-ranges=1-2,5\n",
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
    EXPECT_FALSE(part<QLabel>("customWidthValidation")->text().isEmpty());
    EXPECT_EQ(notice(), QString()) << "the word beside the field says it";
    part<QTabWidget>("parts")->setCurrentIndex(1);
    EXPECT_EQ(notice(), u"The printer cannot take the paper size in Page Setup. Correct it there "
                        "to print."_s);
    part<QTabWidget>("parts")->setCurrentIndex(0);
    EXPECT_EQ(notice(), QString());
    width->setValue(210);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    EXPECT_TRUE(m_window->job().paper()->name.startsWith(u"Custom"_s));
    QTest::keyClicks(part<QLineEdit>("pagesField"), u"x"_s);
    EXPECT_EQ(part<QLabel>("pagesValidation")->text(), u"Pages look like this: 1-3, 5"_s);
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

TEST_F(Window, GoesBackToTheCustomSizeWhereAPaperIsRefused)
{
    m_line.ppd = m_folder.filePath(u"clashing.ppd"_s);
    writeFile(m_line.ppd, sampleText(u"velkaro-px-t900"_s) +
                              "*UIConstraints: *PageSize A3 *VKMediaType Glossy\n"
                              "*UIConstraints: *VKMediaType Glossy *PageSize A3\n");
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("paperPopup", u"Custom"_s);
    const QString paper = m_window->job().paper()->name;
    pick("paperPopup", u"A3"_s);
    EXPECT_NE(notice(), QString());
    EXPECT_EQ(part<PopUpButton>("paperPopup")->selectedObject(), u"Custom"_s);
    EXPECT_TRUE(part<QDoubleSpinBox>("customWidth")->isVisible());
    EXPECT_EQ(m_window->job().paper()->name, paper);
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

TEST_F(Window, TellsOfASettingOfTheCommandLineThatCannotBeMade)
{
    m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}, {u"NoSuch"_s, u"1"_s}};
    open();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(notice(), u"The printer has no setting NoSuch."_s);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Warning);
    pick("resolutionPopup", u"Fast"_s);
    EXPECT_EQ(notice(), QString());
}

TEST_F(Window, SummarizesTheWholeJob)
{
    m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}, {u"copies"_s, u"3"_s}};
    open();
    const QString all = summary().join(u'|');
    EXPECT_TRUE(
        all.startsWith(u"Page Setup|Paper in the "
                       u"Printer|A4|Scaling|Automatic|Orientation|Portrait|Copies|3|Pages|All|"
                       "Two-Sided Printing|Off|Output|Printer|"
                       "Color Management|By the Printer|Print Settings|"_s))
        << all.toStdString();
    EXPECT_TRUE(all.endsWith(u"|Also Sent|Blue|0|Brightness|0|Contrast|0|Green|0|Red|0"_s))
        << all.toStdString();
    EXPECT_TRUE(all.contains(u"|Media Type|Other Glossy Paper|"_s)) << all.toStdString();
    EXPECT_LT(all.indexOf(u"|Print Settings|"_s), all.indexOf(u"|Color Settings|"_s));
}

TEST_F(Window, KeepsWhatAPanelHasWhenAnotherPartIsLookedAt)
{
    open();
    auto *parts = part<QTabWidget>("parts");
    parts->setCurrentIndex(2);
    click("colorEnhanceButton");
    auto *field = part<NumberField>("brightnessField");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, u"4\t"_s);
    ASSERT_EQ(field->value(), 4);
    parts->setCurrentIndex(0);
    pick("paperPopup", u"A3"_s);
    EXPECT_EQ(field->value(), 4) << "after another paper";
    const QStringList texts = summary();
    EXPECT_EQ(texts.value(texts.indexOf(u"Brightness"_s) + 1), u"4"_s);
    EXPECT_EQ(field->value(), 4) << "after the summary";
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

TEST_F(Window, SaysWhyAPanelIsEmptyWhileItIsLookedAt)
{
    const QString copy = m_folder.filePath(u"Broken.bundle"_s);
    ASSERT_EQ(QProcess::execute(u"cp"_s, {u"-r"_s, builtBundle(), copy}), 0);
    writeFile(copy + u"/Resources/VKInkPrintSetting14.ui"_s, "<ui");
    m_line.plugIn = copy;
    open();
    auto *parts = part<QTabWidget>("parts");
    parts->setCurrentIndex(1);
    EXPECT_TRUE(notice().startsWith(u"The settings of this panel cannot be shown: "_s))
        << notice().toStdString();
    parts->setCurrentIndex(2);
    EXPECT_FALSE(notice().contains(u"cannot be shown"_s)) << notice().toStdString();
    parts->setCurrentIndex(1);
    EXPECT_TRUE(notice().startsWith(u"The settings of this panel cannot be shown: "_s));
}

TEST_F(Window, WithoutAPlugInSaysSoAndPrintsWithItsOwnSettings)
{
    m_line.plugIn = m_folder.path();
    open();
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Printer Features"_s, u"Layout & Job"_s,
                                   u"Summary"_s}));
    EXPECT_EQ(notice(), u"The plug-in %1 is incomplete: it has no readable Info.json. Install "
                        "Velkaro Print again."_s.arg(m_folder.path()));
    pick("paperPopup", u"A3"_s);
    print();
    EXPECT_TRUE(m_window->outcome());
    EXPECT_TRUE(written().contains("Option: PageSize=A3\n"));
}

TEST_F(Window, HasNoTabWhereAPanelHasNothingToShow)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    writeFile(m_line.ppd, PPDSource().papers({{"A4", 595, 842}, {"A5", 420, 595}}).text());
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Layout & Job"_s, u"Summary"_s}));
    EXPECT_EQ(notice(), QString());
    print();
    EXPECT_TRUE(m_window->outcome());
}

TEST_F(Window, WithAPPDThatCannotBeUsedSaysSo)
{
    m_line.ppd = m_line.files[0];
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Error);
    EXPECT_EQ(
        notice(),
        u"%1 is not a usable PPD file (line 1: Missing asterisk in column 1)."_s.arg(m_line.ppd));
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
}

TEST_F(Window, KeepsEverythingWhenTheFileCannotBeWritten)
{
    m_line.output = m_folder.filePath(u"nowhere/out.job"_s);
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    print();
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(notice(),
              u"The file %1 cannot be written: No such file or directory."_s.arg(m_line.output));
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(m_window->outcome().faultKind(), FaultKind::Cancelled);
}

TEST_F(Window, SaysThatASessionCannotBeNoted)
{
    m_window = std::make_unique<DialogWindow>(m_line);
    m_window->controller().addSessionHook([](HostSession &) -> Result<> {
        return Fault{FaultKind::Output, u"Not noted."_s};
    });
    m_window->start();
    waitForPrinter();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(notice(), u"Not noted."_s);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Warning);
}

/// The spying plug-in, whose panels fail to save where the ticket asks for it.
class ForeignPanels : public DialogWindowFixture
{
protected:
    ForeignPanels()
    {
        m_line.ppd = m_folder.filePath(u"small.ppd"_s);
        m_line.plugIn = QLatin1String(FIXTURE_FOLDER) + u"/Spy.bundle"_s;
        writeFile(m_line.ppd, smallPrinter().text());
    }
};

TEST_F(ForeignPanels, AreToldOfInTheirOwnWordsWhenTheyFail)
{
    open();
    ASSERT_TRUE(m_window->showPart(u"first"_s));
    m_window->job().session()->writeTicket(u"com.velkaro.test.unsavable"_s, true);
    ASSERT_TRUE(m_window->showPart(u"summary"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(notice(), u"The values of first cannot be kept."_s);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Error);
    print();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(notice(), u"The values of first cannot be kept."_s);
    EXPECT_FALSE(QFileInfo::exists(m_line.output));
}

TEST_F(ForeignPanels, ThatVetoWithoutAWordAreToldOf)
{
    m_line.choices = {{u"Weight"_s, u"Heavy"_s}};
    open();
    print();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(notice(), u"The printer's settings do not allow this job."_s);
}

TEST_F(Window, CanBeRecordedForReplay)
{
    openRecorded();
    pick("mediaTypePopup", u"Glossy"_s);
    m_window->reject();
    EXPECT_TRUE(finishRecording());
    const QByteArray text = readFile(m_line.record);
    EXPECT_TRUE(text.contains("\"Glossy\"")) << text.toStdString();
    EXPECT_TRUE(text.contains("\"close\"")) << text.toStdString();
}

} // namespace
