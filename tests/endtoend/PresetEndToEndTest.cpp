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
#include "tests/endtoend/ProgramRun.h"
#include "tests/printserver/PrintServer.h"
#include "tests/support/Files.h"
#include "tests/support/LpoptionsFolder.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <cups/cups.h>

#include <array>

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
        ASSERT_TRUE(m_server.fault().isNull()) << m_server.fault().toStdString();
        const QString filter = m_server.folder() + u"/note-options"_s;
        writeFile(filter, "#!/bin/sh\nprintf '%s\\n' \"$5\" >> " + log().toLocal8Bit() +
                              "\ncat ${6:+\"$6\"} >/dev/null\n");
        QFile::setPermissions(filter, QFile::Permissions(0x7755));
        const QString ppd = m_server.folder() + u"/noted.ppd"_s;
        writeFile(ppd, readFile(samplePPD(QLatin1String(GetParam()))) +
                           "*cupsFilter: \"application/postscript 0 " + filter.toLocal8Bit() +
                           "\"\n*cupsFilter: \"application/vnd.cups-postscript 0 " +
                           filter.toLocal8Bit() + "\"\n");
        ASSERT_TRUE(m_server.addQueue(u"photo"_s, ppd));
        m_wishes.server = m_server.address();
        m_wishes.queue = u"photo"_s;
        m_wishes.plugIn = builtBundle();
        m_wishes.files = {m_lpoptions.home() + u"/letter.ps"_s};
        writeFile(m_wishes.files[0], "%!PS\nshowpage\n");
    }

    QString log() const { return m_server.folder() + u"/out/options"_s; }

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

    /// libcups sends True and False as booleans, which a filter gets in small letters; it finds the
    /// choice all the same.
    static QString spelledBoolean(const QString &value)
    {
        for (const QString &boolean : {u"true"_s, u"false"_s})
            if (value.compare(boolean, Qt::CaseInsensitive) == 0)
                return boolean;
        return value;
    }

    /// The options of the next job, in order and without what the server adds to every job.
    QStringList notedOptions()
    {
        const int noted = m_noted++;
        EXPECT_TRUE(QTest::qWaitFor([&] { return lines().size() > noted; }, kTimeout));
        cups_option_t *options = nullptr;
        const int count = cupsParseOptions(lines().value(noted).toUtf8().constData(), 0, &options);
        QStringList texts;
        for (int index = 0; index < count; ++index) {
            const QString name = QString::fromUtf8(options[index].name);
            if (!name.startsWith(u"job-") && !name.startsWith(u"date-time-at-") &&
                !name.startsWith(u"time-at-") && !name.startsWith(u"document-name"))
                texts += name + u'=' + spelledBoolean(QString::fromUtf8(options[index].value));
        }
        cupsFreeOptions(count, options);
        texts.sort();
        return texts;
    }

    QStringList lines() const
    {
        QFile file(log());
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                   : QStringList();
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
        return notedOptions();
    }

    QStringList printedByLp(const QString &preset)
    {
        EXPECT_EQ(QProcess::execute(u"lp"_s, {u"-s"_s, u"-h"_s, m_server.address(), u"-d"_s,
                                              u"photo/"_s + preset, m_wishes.files[0]}),
                  0);
        return notedOptions();
    }

    LpoptionsFolder m_lpoptions;
    PrintServer m_server;
    PrintWishes m_wishes;
    ScriptedAnswers m_answers{true};
    int m_noted = 0;
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
