#include "dialog/printing/PrintController.h"

#include "dialog/host/HostSession.h"
#include "dialog/work/BackgroundCall.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/EventLoopWatch.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A controller for the small printer and the spying plug-in, without a server.
class Controller : public testing::Test
{
protected:
    Controller()
    {
        m_wishes.files = {m_folder.filePath(u"letter.ps"_s)};
        m_wishes.ppd = m_folder.filePath(u"the.ppd"_s);
        m_wishes.plugIn = QLatin1String(FIXTURE_FOLDER) + u"/Spy.bundle"_s;
        m_wishes.output = m_folder.filePath(u"letter.velkaro-job"_s);
        writeFile(m_wishes.files[0], "%!PS\n");
        writeFile(m_wishes.ppd, smallPrinter().text());
    }

    PrintController &controller()
    {
        if (!m_controller)
            m_controller = std::make_unique<PrintController>(m_wishes);
        return *m_controller;
    }

    /// What became of looking for the wished printer.
    Result<FoundPrinter> find()
    {
        EXPECT_TRUE(controller().openDocuments(m_wishes.files));
        std::optional<Result<FoundPrinter>> found;
        controller().findPrinter(controller().wantedPrinter(),
                                 [&](const Result<FoundPrinter> &one) { found = one; });
        EXPECT_FALSE(found.has_value()) << "told before the event loop runs";
        EXPECT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }, 20000));
        return *found;
    }

    Result<QStringList> write(const JobRequest &job)
    {
        std::optional<Result<QStringList>> written;
        controller().write(m_wishes.output, job, controller().outputTerms(),
                           [&](const Result<QStringList> &one) { written = one; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return written.has_value(); }, 20000));
        return *written;
    }

    QTemporaryDir m_folder;
    PrintWishes m_wishes;
    std::unique_ptr<PrintController> m_controller;
};

TEST_F(Controller, GoesTheWholeRoadToAFile)
{
    const EventLoopWatch watch;
    m_wishes.choices = {{u"Finish"_s, u"Shiny"_s}, {u"copies"_s, u"3"_s}};
    m_wishes.paper = u"A5"_s;
    const Result<FoundPrinter> found = find();
    ASSERT_TRUE(found) << found.sentence().toStdString();
    EXPECT_EQ(found->shortcomings, QList<Fault>());
    EXPECT_EQ(controller().makeRequestedSettings().sentence(), QString());
    const Result<FinishedJob> job = controller().finish();
    ASSERT_TRUE(job) << job.sentence().toStdString();
    const Result<QStringList> written = write(job->request);
    ASSERT_TRUE(written) << written.sentence().toStdString();
    EXPECT_EQ(*written, QStringList());
    EXPECT_EQ(
        readFile(m_wishes.output),
        "Velkaro-Print-Job: 1\nTitle: letter.ps\n"
        "Option: PageSize=A5\nOption: Duplex=None\n"
        "Option: Finish=Shiny\nOption: Weight=Light\nOption: sides=one-sided\n"
        "Option: copies=3\nOption: multiple-document-handling=separate-documents-collated-copies\n"
        "Option: print-scaling=auto\nDocument: 5 letter.ps\n\n%!PS\n");
}

TEST_F(Controller, MakesAllSettingsAndTellsTheFirstFault)
{
    m_wishes.choices = {
        {u"Finish"_s, u"Velvet"_s}, {u"copies"_s, u"0"_s}, {u"Finish"_s, u"Shiny"_s}};
    ASSERT_TRUE(find());
    int made = 0;
    EXPECT_EQ(
        controller().makeRequestedSettings([&](const RequestedChoice &) { ++made; }).sentence(),
        u"Velvet is no value for Finish. It can be: Matt, Shiny."_s);
    EXPECT_EQ(made, 1);
    EXPECT_EQ(markedChoice(controller().job().ppd(), u"Finish"_s), u"Shiny"_s);
}

TEST_F(Controller, StopsAtASavedJobAmongTheDocuments)
{
    const QString saved = m_folder.filePath(u"saved"_s);
    writeFile(saved, "Velkaro-Print-Job: 1\n\n");
    m_wishes.files += saved;
    ASSERT_TRUE(find());
    const Result<FinishedJob> job = controller().finish();
    EXPECT_EQ(job.faultKind(), FaultKind::Request);
    EXPECT_EQ(job.sentence(), saved + u" is a saved job: it is sent alone, with no "
                                      "other document beside it."_s);
}

TEST_F(Controller, StopsAtAPanelsVeto)
{
    m_wishes.choices = {{u"Weight"_s, u"Heavy"_s}};
    ASSERT_TRUE(find());
    ASSERT_TRUE(controller().makeRequestedSettings());
    const Result<FinishedJob> job = controller().finish();
    EXPECT_EQ(job.faultKind(), FaultKind::Vetoed);
    EXPECT_EQ(job.sentence(), u"The printer's settings do not allow this job."_s);
}

TEST_F(Controller, StopsAtAPanelThatCannotSaveInItsOwnWords)
{
    ASSERT_TRUE(find());
    HostSession &session = *controller().job().session();
    session.writeTicket(u"com.velkaro.test.unsavable"_s, true);
    session.save(*session.panelNamed(u"second"_s));
    EXPECT_EQ(controller().finish().sentence(), u"The values of second cannot be kept."_s);
}

TEST_F(Controller, TellsAPPDThatCannotBeUsed)
{
    writeFile(m_wishes.ppd, "no PPD");
    const Result<FoundPrinter> found = find();
    EXPECT_EQ(found.faultKind(), FaultKind::PPD);
    EXPECT_TRUE(found.sentence().startsWith(m_wishes.ppd)) << found.sentence().toStdString();
    EXPECT_EQ(controller().job().session(), nullptr);
    EXPECT_EQ(controller().job().source().ppdPath, m_wishes.ppd);
}

TEST_F(Controller, TellsWhatAPrinterLacksThatPrintsAllTheSame)
{
    m_wishes.plugIn = u"/nowhere.bundle"_s;
    controller().addSessionHook([](HostSession &) -> Result<> {
        return Fault{FaultKind::Output, u"Not noted."_s};
    });
    const Result<FoundPrinter> found = find();
    ASSERT_TRUE(found) << found.sentence().toStdString();
    ASSERT_EQ(found->shortcomings.size(), 2);
    EXPECT_EQ(found->shortcomings[0], (Fault{FaultKind::Output, u"Not noted."_s}));
    EXPECT_EQ(found->shortcomings[1].kind, FaultKind::PlugIn);
    EXPECT_TRUE(controller().finish());
}

TEST_F(Controller, ClosesAPrinterBeforeItOpensAnother)
{
    ASSERT_TRUE(find());
    bool isOtherOpen = true;
    controller().addSessionHook([&](HostSession &) {
        isOtherOpen = controller().job().session() != nullptr;
        return Result<>();
    });
    ASSERT_TRUE(find());
    EXPECT_FALSE(isOtherOpen);
}

TEST_F(Controller, NotesAJobThatCannotBeSentFromItsFile)
{
    ASSERT_TRUE(find());
    Result<FinishedJob> job = controller().finish();
    ASSERT_TRUE(job);
    job->request.options += JobOption{u"raw"_s, u"true"_s};
    const Result<QStringList> written = write(job->request);
    ASSERT_TRUE(written);
    ASSERT_EQ(written->size(), 1);
    EXPECT_TRUE(written->first().contains(u"it sets raw"_s)) << written->first().toStdString();
}

TEST_F(Controller, WritesNothingOverWhatItReads)
{
    m_wishes.force = true;
    m_wishes.output = m_wishes.ppd;
    ASSERT_TRUE(find());
    const Result<QStringList> written = write(controller().finish()->request);
    EXPECT_EQ(written.faultKind(), FaultKind::Output);
    EXPECT_EQ(written.sentence(),
              u"Nothing is written over %1: it is in use for this."_s.arg(m_wishes.ppd));
}

TEST_F(Controller, TellsNobodyWhenItHasGone)
{
    bool isTold = false;
    controller().findPrinter(controller().wantedPrinter(),
                             [&](const Result<FoundPrinter> &) { isTold = true; });
    m_controller.reset();
    EXPECT_TRUE(waitForBackgroundThreads(std::chrono::seconds(20)));
    QCoreApplication::processEvents();
    EXPECT_FALSE(isTold);
}

} // namespace
