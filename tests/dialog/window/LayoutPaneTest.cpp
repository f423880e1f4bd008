#include "dialog/window/LayoutPane.h"

#include "platform/toolkit/NumberField.h"
#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTimeEdit>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// The dialog with the part "Layout & Job" in front.
class LayoutPart : public DialogWindowFixture
{
protected:
    void openPart()
    {
        open();
        ASSERT_TRUE(m_window->showPart(u"layout"_s));
    }

    /// The job's lines of these options, as it is written.
    QByteArrayList printedLines(const QByteArrayList &names)
    {
        print();
        EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
        QByteArrayList lines;
        for (const QByteArray &line : written().split('\n'))
            for (const QByteArray &name : names)
                if (line.startsWith(name))
                    lines += line;
        return lines;
    }

    /// A PDF of so many pages is the document.
    void useDocument(int pages)
    {
        m_line.files = {m_folder.filePath(u"pages.pdf"_s)};
        QPdfWriter writer(m_line.files[0]);
        QPainter painter(&writer);
        for (int page = 1; page < pages; ++page)
            writer.newPage();
    }

    QString pagesValidation() { return part<QLabel>("pagesValidation")->text(); }
};

const QByteArrayList kLayoutLines{"Option: number-up", "Option: page-", "Option: outputorder",
                                  "Option: booklet",   "Option: job-",  "Option: multiple-",
                                  "Option: notify-",   "Title: "};

TEST_F(LayoutPart, SendsNothingThatNobodyHasTouched)
{
    openPart();
    EXPECT_EQ(printedLines(kLayoutLines), QByteArrayList{"Title: Holiday & <b>.ps"});
}

TEST_F(LayoutPart, SendsWhatWasPicked)
{
    openPart();
    pick("number-upPopup", u"4"_s);
    pick("number-up-layoutPopup", u"tblr"_s);
    pick("page-borderPopup", u"double"_s);
    pick("page-setPopup", u"odd"_s);
    pick("outputorderPopup", u"reverse"_s);
    pick("multiple-document-handlingPopup", u"separate-documents-uncollated-copies"_s);
    pick("job-hold-untilPopup", u"night"_s);
    pick("coverBeforePopup", u"none"_s);
    QTest::keyClick(part<NumberField>("priorityField"), Qt::Key_Up);
    QTest::keyClicks(part<QLineEdit>("titleField"), u"A <b>title</b>"_s);
    QTest::keyClicks(part<QLineEdit>("notificationField"), u"me@example.com"_s);
    EXPECT_EQ(printedLines(kLayoutLines),
              (QByteArrayList{"Title: A <b>title</b>", "Option: number-up=4",
                              "Option: number-up-layout=tblr", "Option: page-border=double",
                              "Option: page-set=odd", "Option: outputorder=reverse",
                              "Option: multiple-document-handling="
                              "separate-documents-uncollated-copies",
                              "Option: job-hold-until=night", "Option: job-priority=51",
                              "Option: job-sheets=none,none",
                              "Option: notify-recipient-uri=mailto:me@example.com"}));
}

TEST_F(LayoutPart, PrintsSeveralCopiesAsItShows)
{
    openPart();
    QTest::keyClick(part<NumberField>("copiesField"), Qt::Key_Up);
    EXPECT_EQ(part<PopUpButton>("multiple-document-handlingPopup")->currentText(),
              u"Copy by copy"_s);
    EXPECT_TRUE(summary().join(u'|').contains(u"|Layout & Job|Several Copies|Copy by copy|"_s))
        << summary().join(u'|').toStdString();
    EXPECT_EQ(
        printedLines({"Option: multiple-"}),
        QByteArrayList{"Option: multiple-document-handling=separate-documents-collated-copies"});
}

TEST_F(LayoutPart, IsInTheSummary)
{
    m_line.choices = {{u"number-up"_s, u"2"_s}, {u"job-sheets"_s, u"standard"_s}};
    m_line.title = u"Mine"_s;
    open();
    EXPECT_TRUE(summary().join(u'|').contains(
        u"|Layout & Job|Job Title|Mine|Pages per Sheet|2|Cover Pages|Standard before the job|"_s))
        << summary().join(u'|').toStdString();
}

TEST_F(LayoutPart, ShowsTheSettingsOfTheCommandLine)
{
    m_line.choices = {{u"number-up"_s, u"9"_s},
                      {u"job-hold-until"_s, u"indefinite"_s},
                      {u"job-priority"_s, u"7"_s},
                      {u"job-sheets"_s, u"none,form"_s}};
    m_line.title = u"Mine"_s;
    openPart();
    EXPECT_EQ(part<PopUpButton>("number-upPopup")->selectedObject(), u"9"_s);
    EXPECT_EQ(part<PopUpButton>("job-hold-untilPopup")->selectedObject(), u"indefinite"_s);
    EXPECT_EQ(part<NumberField>("priorityField")->value(), 7);
    EXPECT_EQ(part<PopUpButton>("coverAfterPopup")->selectedObject(), u"form"_s);
    EXPECT_EQ(part<QLineEdit>("titleField")->text(), u"Mine"_s);
}

TEST_F(LayoutPart, HoldsAJobUntilATimeOfThisMachine)
{
    const QByteArray zone = qgetenv("TZ");
    const auto restore = qScopeGuard([&] {
        zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
        tzset();
    });
    qputenv("TZ", "JST-9");
    tzset();
    openPart();
    EXPECT_FALSE(part<QTimeEdit>("holdTime")->isVisible());
    pick("job-hold-untilPopup", u"time"_s);
    auto *time = part<QTimeEdit>("holdTime");
    ASSERT_TRUE(time->isVisible());
    time->setTime(QTime(8, 30));
    EXPECT_EQ(printedLines({"Option: job-hold-until"}),
              QByteArrayList{"Option: job-hold-until=23:30"});
}

TEST_F(LayoutPart, LetsABookletHaveItsOwnOrder)
{
    openPart();
    EXPECT_FALSE(part<QWidget>("number-up-layoutPopup")->isEnabled());
    pick("number-upPopup", u"2"_s);
    EXPECT_TRUE(part<QWidget>("number-up-layoutPopup")->isEnabled());
    pick("bookletPopup", u"on"_s);
    EXPECT_FALSE(part<QWidget>("number-upPopup")->isEnabled());
    EXPECT_FALSE(part<QWidget>("number-up-layoutPopup")->isEnabled());
}

TEST_F(LayoutPart, TellsThatABookletNeedsBothSides)
{
    openPart();
    pick("number-upPopup", u"4"_s);
    EXPECT_EQ(notice(), QString());
    pick("bookletPopup", u"on"_s);
    EXPECT_EQ(notice(), u"A booklet has two pages on a side, not 4. A booklet needs both sides of "
                        "the paper; this job is printed on one."_s);
    pick("DuplexPopup", u"DuplexTumble"_s);
    EXPECT_EQ(notice(), u"A booklet has two pages on a side, not 4."_s);
    pick("bookletPopup", u"off"_s);
    EXPECT_EQ(notice(), QString());
}

TEST_F(LayoutPart, DoesNotPrintWithAnAddressThatIsNone)
{
    openPart();
    QTest::keyClicks(part<QLineEdit>("notificationField"), u"me"_s);
    EXPECT_EQ(part<QLabel>("notificationValidation")->text(),
              u"An address looks like this: me@example.com"_s);
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
    QTest::keyClicks(part<QLineEdit>("notificationField"), u"@example.com"_s);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
}

TEST_F(LayoutPart, IsNotLookedForByAWrongWord)
{
    m_line.panel = u"foo"_s;
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isVisible(); }));
    EXPECT_EQ(m_window->outcome().faultKind(), FaultKind::Request);
    EXPECT_EQ(m_window->outcome().sentence(), u"There is no panel foo."_s);
}

TEST_F(LayoutPart, IsSaidToBeMissingWhereThePrinterHasNothingForIt)
{
    m_line.panel = u"supplies"_s;
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isVisible(); }));
    EXPECT_EQ(m_window->outcome().sentence(), u"This printer has nothing for the part supplies."_s);
}

TEST_F(LayoutPart, SaysHowManyPagesThereAreAndWhatIsBeyond)
{
    useDocument(5);
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return pagesValidation() == u"5 in all"_s; }))
        << pagesValidation().toStdString();
    auto *pages = part<QLineEdit>("pagesField");
    QTest::keyClicks(pages, u"1,99"_s);
    EXPECT_EQ(pagesValidation(), u"99 is beyond page 5"_s);
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
    QTest::keyClick(pages, Qt::Key_Backspace);
    QTest::keyClick(pages, Qt::Key_Backspace);
    QTest::keyClicks(pages, u"4-99"_s);
    EXPECT_EQ(pagesValidation(), u"5 in all"_s);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
}

// The server's filters choose pages when several of them stand on a side already.
TEST_F(LayoutPart, CountsSidesWhereSeveralPagesStandOnOne)
{
    useDocument(5);
    openPart();
    EXPECT_TRUE(QTest::qWaitFor([this] { return pagesValidation() == u"5 in all"_s; }))
        << pagesValidation().toStdString();
    QTest::keyClicks(part<QLineEdit>("pagesField"), u"4"_s);
    EXPECT_EQ(notice(), QString());
    pick("number-upPopup", u"2"_s);
    EXPECT_EQ(pagesValidation(), u"4 is beyond side 3"_s);
    EXPECT_EQ(notice(), u"With several pages on a sheet, \"Pages\" and \"Even and Odd\" count the "
                        "printed sides."_s);
    EXPECT_FALSE(part<QAbstractButton>("printButton")->isEnabled());
    pick("bookletPopup", u"on"_s);
    EXPECT_EQ(pagesValidation(), u"4 sides in all"_s);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
    pick("bookletPopup", u"off"_s);
    pick("number-upPopup", u"1"_s);
    EXPECT_EQ(pagesValidation(), u"5 in all"_s);
    EXPECT_EQ(notice(), QString());
    pick("number-upPopup", u"4"_s);
    QTest::keyClick(part<QLineEdit>("pagesField"), Qt::Key_Backspace);
    EXPECT_EQ(pagesValidation(), u"2 sides in all"_s);
    EXPECT_EQ(notice(), QString());
    pick("page-setPopup", u"even"_s);
    EXPECT_NE(notice(), QString());
}

TEST_F(LayoutPart, SaysThatPagesAreNotKnownAndTakesAny)
{
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return pagesValidation() == u"How many there are is not known"_s;
    })) << pagesValidation().toStdString();
    QTest::keyClicks(part<QLineEdit>("pagesField"), u"99"_s);
    EXPECT_TRUE(part<QAbstractButton>("printButton")->isEnabled());
}

} // namespace
