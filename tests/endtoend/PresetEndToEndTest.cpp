// Presets against the real server: lp prints with a preset exactly what the dialog prints with it.
#include "dialog/host/HostSession.h"
#include "dialog/job/LpoptionsFile.h"
#include "dialog/printing/Presets.h"
#include "dialog/printing/PrintController.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/printing/SettingRequests.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/NotingPrinters.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/Files.h"
#include "tests/support/LpoptionsFolder.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 20000; // ms
constexpr int kPresets = 10;    // of each printer
constexpr int kSettings = 6;    // that are tried for one

/// A server whose queues hand every job to a filter that notes the options it gets.
class PresetJobs : public testing::TestWithParam<const char *>
{
protected:
    PresetJobs() { UserDefaults::standardUserDefaults().setFolder(QString()); }

    void SetUp() override
    {
        ASSERT_TRUE(m_printers.server().fault().isNull())
            << m_printers.server().fault().toStdString();
        ASSERT_TRUE(m_printers.addQueue(u"photo"_s, QLatin1String(GetParam())));
        m_wishes.server = m_printers.server().address();
        m_wishes.queue = u"photo"_s;
        m_wishes.plugIn = builtBundle();
        m_wishes.files = {m_lpoptions.home() + u"/letter.ps"_s};
        writeFile(m_wishes.files[0], "%!PS\nshowpage\n");
    }

    std::unique_ptr<PrintController> open(const QString &preset)
    {
        PrintWishes wishes = m_wishes;
        wishes.instance = preset;
        auto controller = std::make_unique<PrintController>(wishes);
        EXPECT_TRUE(controller->openDocuments(wishes.files));
        std::optional<Result<FoundPrinter>> found;
        controller->findPrinter(controller->wantedPrinter(),
                                [&](const Result<FoundPrinter> &one) { found = one; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }, kTimeout));
        EXPECT_TRUE(*found) << found->sentence().toStdString();
        EXPECT_EQ((*found)->notes, QStringList());
        return controller;
    }

    /// Tries some random settings, as a person would make them; what is refused is refused.
    static void settle(PrintJob &job, QRandomGenerator &random)
    {
        const QList<PPDMark> marks = marksOf(job.ppd());
        for (int setting = 0; setting < kSettings; ++setting) {
            const PPDMark &mark = marks[random.bounded(static_cast<int>(marks.size()))];
            const ppd_option_t *option = findOption(job.ppd(), mark.keyword);
            const QString choice =
                ppdName(option->choices[random.bounded(option->num_choices)].choice);
            makeSetting(job, {mark.keyword, choice});
        }
        if (random.bounded(2) == 1)
            job.setOrientation(PMOrientation::Landscape);
    }

    /// What the printer was asked for: the choices as filters mark them, and what is no choice of
    /// the PPD. Without the standard attributes that say the same as choices, and what a server
    /// adds to every job.
    QStringList printed(int job)
    {
        static const QStringList sayTheSame{u"cupsPrintQuality"_s, u"finishings"_s,
                                            u"print-color-mode"_s, u"print-quality"_s, u"sides"_s};
        const NotedJob noted = m_printers.noted(u"photo"_s, job);
        const QList<PPDMark> marks = noted.marks();
        QStringList texts;
        for (const PPDMark &mark : marks)
            texts += mark.keyword + u'=' + mark.choice;
        for (auto option = noted.options.cbegin(); option != noted.options.cend(); ++option) {
            const QString &name = option.key();
            const bool isChoice = std::ranges::find(marks, name, &PPDMark::keyword) != marks.end();
            if (!isChoice && !sayTheSame.contains(name) && !name.startsWith(u"job-") &&
                !name.startsWith(u"date-time-at-") && !name.startsWith(u"time-at-") &&
                !name.startsWith(u"document-name"))
                texts += name + u'=' + option.value();
        }
        return texts;
    }

    /// As the dialog does when it has saved a preset.
    void confirm(const QString &preset)
    {
        const auto controller = open(preset);
        if (!isAsSaved(controller->job(), preset)) {
            ASSERT_TRUE(savePreset(controller->job(), preset));
        }
    }

    QStringList printedByDialog(const QString &preset)
    {
        const auto controller = open(preset);
        const Result<FinishedJob> job = controller->finish();
        EXPECT_TRUE(job) << job.sentence().toStdString();
        if (!job)
            return {};
        std::optional<Result<JobReceipt>> sent;
        controller->send(job->request, [&](const Result<JobReceipt> &one) { sent = one; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return sent.has_value(); }, kTimeout));
        EXPECT_TRUE(*sent) << sent->sentence().toStdString();
        return *sent ? printed((*sent)->id) : QStringList();
    }

    QStringList printedByLp(const QString &preset)
    {
        QProcess lp;
        lp.start(u"lp"_s,
                 {u"-h"_s, m_wishes.server, u"-d"_s, u"photo/"_s + preset, m_wishes.files[0]});
        EXPECT_TRUE(lp.waitForFinished() && lp.exitCode() == 0);
        const QString said = QString::fromUtf8(lp.readAllStandardOutput());
        return printed(said.section(u'-', 1).section(u' ', 0, 0).toInt());
    }

    LpoptionsFolder m_lpoptions;
    NotingPrinters m_printers;
    PrintWishes m_wishes;
    ScriptedAnswers m_answers{true};
};

TEST_P(PresetJobs, AreTheSameFromLpAndFromTheDialog)
{
    // lp repeats the defaults that the server tells of a queue; they are no settings of anybody's.
    m_lpoptions.writeUser("Dest photo/none\n");
    const QStringList ofEveryLp = printedByLp(u"none"_s);
    for (int number = 0; number < kPresets; ++number) {
        QRandomGenerator random(static_cast<quint32>(number + 1));
        // Settings of the queue's own must not show through.
        if (number == kPresets / 2)
            m_lpoptions.writeUser(m_lpoptions.user() +
                                  "Dest photo VKMediaType=Glossy VKBiDir=OFF\n");
        const QString preset = u"preset%1"_s.arg(number);
        {
            const auto controller = open({});
            settle(controller->job(), random);
            m_answers.answerSheets();
            (void)controller->finish(); // the panels save what they have
            m_answers.answerSheets();
            ASSERT_TRUE(savePreset(controller->job(), preset));
        }
        confirm(preset);
        const QStringList byDialog = printedByDialog(preset);
        m_answers.answerSheets();
        EXPECT_GT(byDialog.size(), 1);
        QStringList byLp = printedByLp(preset);
        byLp.removeIf([&](const QString &option) {
            return ofEveryLp.contains(option) && !byDialog.contains(option);
        });
        EXPECT_EQ(byLp, byDialog) << preset.toStdString() << '\n'
                                  << m_lpoptions.user().toStdString();
    }
}

// The program says that pages are not turned for a job that lies, and takes it back with that.
TEST_P(PresetJobs, TurnPagesByThemselvesAgainWhenTheyAreMadeUpright)
{
    m_lpoptions.writeUser("Dest photo/wide orientation-requested=4 pdfAutoRotate=false\n"
                          "Dest photo/own pdfAutoRotate=false\n");
    const auto autoRotate = [](const PrintController &controller) {
        return optionValue(controller.job().options().options, u"pdfAutoRotate"_s);
    };
    const auto wide = open(u"wide"_s);
    EXPECT_EQ(autoRotate(*wide), u"false"_s);
    wide->job().setOrientation(PMOrientation::Portrait);
    EXPECT_EQ(autoRotate(*wide), QString());
    EXPECT_EQ(autoRotate(*open(u"own"_s)), u"false"_s);
}

INSTANTIATE_TEST_SUITE_P(SamplePrinters, PresetJobs,
                         testing::Values("velkaro-px-t900", "velkaro-px-330c", "velkaro-mx-j710dw",
                                         "velkaro-strange"));

class UnknownPreset : public testing::TestWithParam<QStringList>
{};

// lp prints without any settings then, and says nothing.
TEST_P(UnknownPreset, IsRefusedBeforeAnythingIsAsked)
{
    const QTemporaryDir folder;
    const QString document = folder.filePath(u"letter.ps"_s);
    writeFile(document, "%!PS\n");
    const ProgramRun run = runProgram(
        QStringList{u"-h"_s, u"127.0.0.1:1"_s, u"-d"_s, u"photo/nosuch"_s, document} + GetParam(),
        "Dest photo/glossy x=1\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, u"velkaro-print: There are no settings saved as \"nosuch\" for the "
                          "printer photo.\n"_s);
}

INSTANTIATE_TEST_SUITE_P(All, UnknownPreset,
                         testing::Values(QStringList{u"--no-dialog"_s},
                                         QStringList{u"--screenshot"_s, u"/dev/null"_s}));

} // namespace
