#include "dialog/job/PaperMemory.h"
#include "dialog/window/PageSetupPane.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/ClashingPPD.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

using namespace Qt::StringLiterals;

namespace {

using Window = DialogWindowFixture;

TEST_F(Window, TellsThatThePaperMenuHasSentItsAction)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    QStringList told;
    const QWidget *menu = part<QWidget>("paperPopup");
    NotificationCenter::defaultCenter().addObserver(
        this,
        [&](const Notification &posted) {
            told << posted.userInfo.value_or(QVariantMap()).value(u"MenuItem"_s).toString() +
                        u" on "_s + m_window->job().paper()->name;
        },
        QLatin1String(kMenuDidSendActionNotification), menu);
    pick("paperPopup", u"A3"_s);
    pick("paperPopup", u"Custom"_s);
    NotificationCenter::defaultCenter().removeObserver(this);
    EXPECT_EQ(told, (QStringList{u"A3 on A3"_s, u"Custom Size on Custom.841.89x1190.55"_s}));
}

TEST_F(Window, AsksForTheSizeFirstAndThenWhetherToItsEdges)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    auto *borderless = part<QAbstractButton>("borderlessButton");
    ASSERT_TRUE(borderless->isVisible());
    click("borderlessButton");
    EXPECT_EQ(marked(u"PageSize"_s), u"A4.Fullbleed"_s);
    EXPECT_EQ(m_window->job().paper()->ppdName, u"A4.Fullbleed"_s);
    EXPECT_EQ(part<PopUpButton>("paperPopup")->currentText(), u"A4"_s);
    pick("paperPopup", u"4x6"_s);
    EXPECT_EQ(marked(u"PageSize"_s), u"4x6.Fullbleed"_s) << "another size stays borderless";
    EXPECT_TRUE(borderless->isChecked());
    pick("paperPopup", u"Legal"_s);
    EXPECT_EQ(marked(u"PageSize"_s), u"Legal"_s) << "which has no borderless form";
    EXPECT_FALSE(borderless->isVisible());
    pick("paperPopup", u"A4"_s);
    EXPECT_EQ(marked(u"PageSize"_s), u"A4"_s);
    EXPECT_FALSE(borderless->isChecked());
}

TEST_F(Window, TakesABorderlessPaperBackThatThePrinterRefuses)
{
    m_line.ppd = m_folder.filePath(u"clashing.ppd"_s);
    writeFile(m_line.ppd, sampleText(u"velkaro-px-t900"_s) +
                              "*UIConstraints: *PageSize A4.Fullbleed *VKMediaType Glossy\n"
                              "*UIConstraints: *VKMediaType Glossy *PageSize A4.Fullbleed\n");
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    part<QTabWidget>("parts")->setCurrentIndex(0);
    click("borderlessButton");
    EXPECT_NE(notice(), QString());
    EXPECT_FALSE(part<QAbstractButton>("borderlessButton")->isChecked());
    EXPECT_EQ(marked(u"PageSize"_s), u"A4"_s);
}

TEST_F(Window, ListsPapersUnderHeadingsThatCannotBePicked)
{
    m_line.queue = u"Unused"_s;
    open();
    const auto *papers = part<PopUpButton>("paperPopup");
    QStringList headings;
    for (int index = 0; index < papers->count(); ++index) {
        if (papers->representedObject(index).isNull())
            headings += papers->itemText(index);
        EXPECT_EQ(papers->isItemEnabled(index), !papers->representedObject(index).isNull());
    }
    EXPECT_EQ(headings, (QStringList{u"Standard"_s, u"Photo"_s, u"Envelopes and Cards"_s,
                                     u"Discs"_s, u"Own Sizes"_s}));
}

TEST_F(Window, FindsAPaperByWhatIsTyped)
{
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::German));
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    auto *papers = part<PopUpButton>("paperPopup");
    papers->setFocus();
    QTest::keyClicks(papers, u"1"_s);
    auto *words = part<QLineEdit>("searchField");
    const auto *rows = part<QListView>("searchRows");
    words->setFocus();
    words->selectAll();
    QTest::keyClicks(words, u"148x210"_s);
    ASSERT_EQ(rows->model()->rowCount(), 1) << "headings are no finds";
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_EQ(marked(u"PageSize"_s), u"A5"_s);
    EXPECT_EQ(papers->currentText(), u"A5"_s);

    QTest::keyClicks(papers, u"4x6"_s.left(1));
    words->clear();
    EXPECT_TRUE(rows->currentIndex().flags().testFlag(Qt::ItemIsEnabled));
    const QModelIndex heading = rows->model()->index(0, 0);
    ASSERT_FALSE(heading.flags().testFlag(Qt::ItemIsEnabled));
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, rows->visualRect(heading).center());
    EXPECT_TRUE(rows->isVisible()) << "a heading picks nothing";
    words->insert(u"4x6"_s);
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_EQ(marked(u"PageSize"_s), u"4x6"_s);
    QLocale::setDefault(former);
}

TEST_F(Window, RemembersThePapersThatAPrinterWasPrintedToWith)
{
    m_line.queue = u"Remembering"_s;
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("paperPopup", u"A3"_s);
    print();
    ASSERT_TRUE(m_window->outcome()) << notice().toStdString();
    open();
    const auto *papers = part<PopUpButton>("paperPopup");
    EXPECT_EQ(papers->itemText(0), u"Used Recently"_s);
    EXPECT_EQ(papers->representedObject(1), u"A3"_s);
    EXPECT_EQ(papers->itemText(2), u"Standard"_s);
    EXPECT_EQ(marked(u"PageSize"_s), u"A3"_s) << "as it was used last";
}

TEST_F(Window, KeepsSizesOfTheUsersOwnByTheirNames)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    auto *papers = part<PopUpButton>("paperPopup");
    pick("paperPopup", u"Custom"_s);
    m_window->findChild<QComboBox *>(u"customUnit"_s)->setCurrentIndex(0);
    part<QDoubleSpinBox>("customWidth")->setValue(100);
    part<QDoubleSpinBox>("customHeight")->setValue(150);
    EXPECT_FALSE(part<QAbstractButton>("keepSizeButton")->isEnabled()) << "without a name";
    QTest::keyClicks(part<QLineEdit>("sizeNameField"), u"Card & <b>"_s);
    QTest::keyClick(part<QLineEdit>("sizeNameField"), Qt::Key_Return);
    ASSERT_EQ(m_window->state(), DialogWindow::State::Ready) << "Return keeps the size";
    const QString own = papers->selectedObject();
    EXPECT_TRUE(own.startsWith(u"Custom."_s)) << own.toStdString();
    EXPECT_EQ(papers->currentText(), u"Card & <b>"_s);
    const QString paper = m_window->job().paper()->name;

    pick("paperPopup", u"A4"_s);
    EXPECT_FALSE(part<QLineEdit>("sizeNameField")->isVisible());
    pick("paperPopup", own);
    EXPECT_EQ(m_window->job().paper()->name, paper);
    EXPECT_EQ(m_window->job().paper()->ppdName, QString());
    auto *name = part<QLineEdit>("sizeNameField");
    EXPECT_EQ(name->text(), u"Card & <b>"_s);
    name->setText(u"Menu"_s);
    click("renameSizeButton");
    EXPECT_EQ(papers->currentText(), u"Menu"_s);
    EXPECT_EQ(papers->indexOfTitle(u"Card & <b>"_s), -1);
    click("removeSizeButton");
    EXPECT_EQ(papers->selectedObject(), u"Custom"_s);
    EXPECT_EQ(papers->indexOfTitle(u"Menu"_s), -1);
    EXPECT_EQ(m_window->job().paper()->name, paper);
}

TEST_F(Window, OpensTheListOfPapersAtTheUsersOwnSize)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    auto *papers = part<PopUpButton>("paperPopup");
    papers->setFocus();
    papers->showPopup();
    QTest::keyClicks(part<QLineEdit>("searchField"), u"custom"_s);
    QTest::keyClick(part<QLineEdit>("searchField"), Qt::Key_Return);
    part<QDoubleSpinBox>("customWidth")->setValue(100);
    QTest::keyClicks(part<QLineEdit>("sizeNameField"), u"Card"_s);
    click("keepSizeButton");
    papers->showPopup();
    EXPECT_EQ(part<QListView>("searchRows")->currentIndex().data().toString(), u"Card"_s);
    papers->hidePopup();
    removeOwnSize(u"Card"_s);
}

TEST_F(Window, ShowsTheSizeOfTheUsersOwnThatItStartsWith)
{
    m_line.paper = u"Custom.100x150mm"_s;
    open();
    EXPECT_DOUBLE_EQ(part<QDoubleSpinBox>("customWidth")->value(), 100);
    EXPECT_DOUBLE_EQ(part<QDoubleSpinBox>("customHeight")->value(), 150);
    EXPECT_EQ(part<QLabel>("customWidthValidation")->text(), QString());
    part<QTabWidget>("parts")->setCurrentIndex(0);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    pick("scalingPopup", u"fill"_s);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    QTest::keySequence(m_window.get(), QKeySequence::Undo);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    EXPECT_DOUBLE_EQ(part<QDoubleSpinBox>("customHeight")->value(), 150);
    EXPECT_EQ(m_window->job().paper()->name, u"Custom.283.46x425.2"_s);
}

TEST_F(Window, SaysWhatTheScalingDoesOnThePaperThatIsChosen)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("scalingPopup", u"fill"_s);
    auto *scaling = part<PopUpButton>("scalingPopup");
    const auto *sentence = part<QLabel>("scalingSentence");
    EXPECT_EQ(scaling->currentText(), u"Fill the Printable Area"_s);
    EXPECT_EQ(sentence->text(), u"Every page is made so large that only the paper's margins stay "
                                "white. What does not fit is cut off."_s);
    click("borderlessButton");
    EXPECT_EQ(scaling->currentText(), u"Fill the Sheet"_s);
    EXPECT_EQ(scaling->selectedObject(), u"fill"_s);
    EXPECT_EQ(sentence->text(), u"Every page is made so large that no place stays white. What does "
                                "not fit is cut off."_s);
    const QStringList texts = summary();
    EXPECT_EQ(texts.value(texts.indexOf(u"Scaling"_s) + 1), u"Fill the Sheet"_s);
}

TEST_F(Window, ShowsTheSheetThatAPageIsMappedToAsThePaperInThePrinter)
{
    open();
    const PMPaper page = *m_window->job().paper();
    m_window->job().session()->setPaper(page, u"A5"_s);
    const QString all = summary().join(u'|');
    EXPECT_TRUE(all.startsWith(u"Page Setup|Paper in the Printer|A5|Document Page|A4|"_s))
        << all.toStdString();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    part<PageSetupPane>("pageSetupPane")->reload();
    EXPECT_EQ(part<PopUpButton>("paperPopup")->selectedObject(), u"A5"_s);
    EXPECT_EQ(part<QLabel>("documentPageLabel")->text(), u"A4"_s);
    pick("paperPopup", u"A3"_s);
    EXPECT_FALSE(part<QLabel>("documentPageLabel")->isVisible());
    EXPECT_EQ(m_window->job().mappedPaper(), QString());
    print();
    EXPECT_TRUE(written().contains("Option: PageSize=A3\n"));
}

} // namespace
