// What arrives at a printer is what was shown: pairs of all choices, for every sample printer.
#include "dialog/cups/JobSubmission.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/Presets.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/NotingPrinters.h"
#include "tests/endtoend/PairwiseRows.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"
#include "tests/support/LpoptionsFolder.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QProcess>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Of each printer; VELKARO_SHOWN_ROWS=all is the whole proof, "4290-4300" those rows, "4290" all
// from that one on.
constexpr std::size_t kRows = 12;
constexpr std::size_t kBatch = 24;      // jobs on their way at once
constexpr std::size_t kEveryPreset = 6; // of so many rows one is saved as a preset, too

// The proof may run beside everything else: a server that is late is no fault of it.
constexpr std::chrono::minutes kLongestAnswer{2};

/// A keyword of the PPD, or a setting of the dialog's own, with all its values.
struct Factor
{
    QString name;
    QStringList values;
    bool isOfPPD = true;
};

/// A standard attribute that says the same as a choice, for whoever goes by it.
struct Twin
{
    const char *keyword;
    const char *choice;
    const char *attribute;
    const char *value;
};

constexpr Twin kTwins[] = {
    {"VKMonoColor", "Color", "print-color-mode", "color"},
    {"VKMonoColor", "Mono", "print-color-mode", "monochrome"},
    {"VKResolution", "PlainFast", "print-quality", "3"},
    {"VKResolution", "PlainNormal", "print-quality", "4"},
    {"VKResolution", "High", "print-quality", "5"},
    {"VKResolution", "Best", "print-quality", "5"},
    {"VKResolution", "Fast", "print-quality", "3"},
    {"VKResolution", "Normal", "print-quality", "4"},
    {"VKResolution", "Photo", "print-quality", "5"},
    {"VKResolution", "DiscNormal", "print-quality", "4"},
    {"VKResolution", "DiscSlow", "print-quality", "5"},
    {"Duplex", "None", "sides", "one-sided"},
    {"Duplex", "DuplexNoTumble", "sides", "two-sided-long-edge"},
    {"Duplex", "DuplexTumble", "sides", "two-sided-short-edge"},
};

// The server writes this one for itself.
constexpr auto kCollation = "multiple-document-handling"_L1;

/// A job that was sent, and what was shown of it.
struct Shown
{
    QString queue;
    int id = 0;
    QStringList marks; ///< "KEYWORD=CHOICE"
    QMap<QString, QString> settings;
};

QStringList asTexts(const QList<PPDMark> &marks)
{
    QStringList texts;
    for (const PPDMark &mark : marks)
        texts += mark.keyword + u'=' + mark.choice;
    return texts;
}

class Arrival : public testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_printers.server().fault().isNull());
        const QString sample = QLatin1String(GetParam());
        ASSERT_TRUE(m_printers.addQueue(u"plain"_s, sample));
        ASSERT_TRUE(m_printers.addQueue(u"own"_s, sample));
        ASSERT_TRUE(m_printers.server().lpadmin({u"-p"_s, u"own"_s,
                                                 u"-o"_s, u"print-quality-default=5"_s,
                                                 u"-o"_s, u"print-color-mode-default=monochrome"_s,
                                                 u"-o"_s, u"sides-default=two-sided-long-edge"_s,
                                                 u"-o"_s, u"number-up-default=4"_s,
                                                 u"-o"_s, u"copies-default=3"_s,
                                                 u"-o"_s, u"page-border-default=double"_s,
                                                 u"-o"_s, u"outputorder-default=reverse"_s,
                                                 u"-o"_s, u"page-set-default=even"_s,
                                                 u"-o"_s, u"print-scaling-default=fill"_s,
                                                 u"-o"_s, u"VKMediaType-default=Glossy"_s,
                                                 u"-o"_s, u"VKResolution-default=Photo"_s,
                                                 u"-o"_s, u"PageSize-default=A5"_s}));
        ASSERT_TRUE(m_printers.server().lpadmin({u"-p"_s, u"plain"_s, u"-c"_s, u"class"_s}));
        ASSERT_TRUE(m_printers.server().command(u"cupsaccept"_s, {u"class"_s}));
        ASSERT_TRUE(m_printers.server().command(u"cupsenable"_s, {u"class"_s}));
        writeFile(document(), "A page.\n");
        SessionOptions options;
        options.ppdPath = samplePPD(sample);
        options.bundlePath = builtBundle();
        m_job.setDocuments(openedDocuments({document()}));
        PrinterSource source;
        source.server = m_printers.server().address();
        source.queue = {u"plain"_s, {}};
        m_job.setPrinter(source, openPrinter(options, *openPPD(options.ppdPath), {}));
        ASSERT_TRUE(m_job.session()->hasPlugIn());
        m_rules = m_job.attributeRules();
    }

    QString document() const { return m_lpoptions.home() + u"/page.txt"_s; }

    QList<Factor> factors() const
    {
        QList<Factor> all;
        for (const PPDMark &mark : marksOf(m_job.ppd())) {
            if (m_job.session()->titledKeywords().contains(mark.keyword))
                continue; // its value travels in the ticket
            const ppd_option_t *option = findOption(m_job.ppd(), mark.keyword);
            Factor factor{mark.keyword, {}};
            for (int index = 0; index < option->num_choices; ++index)
                if (qstrcmp(option->choices[index].choice, "Custom") != 0)
                    factor.values += ppdName(option->choices[index].choice);
            all += factor;
        }
        for (const LayoutSetting &setting : layoutSettings()) {
            Factor factor{setting.option, {}, false};
            for (const LayoutChoice &choice : setting.choices)
                factor.values += choice.value;
            if (setting.option != "job-hold-until"_L1 && setting.choices.size() > 1)
                all += factor;
        }
        all += Factor{u"copies"_s, {u"1"_s, u"2"_s}, false};
        return all;
    }

    void settle(const QList<Factor> &factors, const PairwiseRow &row)
    {
        for (std::size_t index = 0; index < row.size(); ++index) {
            const Factor &factor = factors[static_cast<qsizetype>(index)];
            const QString value = factor.values[row[index]];
            if (factor.isOfPPD)
                ASSERT_TRUE(forceChoice(m_job.ppd(), factor.name, value)) << value.toStdString();
            else if (factor.name == "copies"_L1)
                m_job.settings().copies = value.toInt();
            else
                m_job.settings().layout.*layoutSetting(factor.name)->value = value;
        }
    }

    /// What the dialog shows of its own settings.
    QMap<QString, QString> ownSettings() const
    {
        QMap<QString, QString> settings;
        for (const LayoutSetting &setting : layoutSettings())
            if (const QString value = m_job.settings().layout.*setting.value; !value.isNull())
                settings.insert(setting.option, value);
        return settings;
    }

    Shown send(const QString &queue)
    {
        JobRequest request = m_job.request(m_job.wholeOptions().options);
        request.queue = queue;
        CallGuard guard(kLongestAnswer);
        const auto receipt = submitJob(request, guard);
        EXPECT_TRUE(receipt) << receipt.sentence().toStdString();
        if (!receipt)
            return {};
        EXPECT_FALSE(receipt->isOnTrial);
        EXPECT_EQ(receipt->notes, QStringList());
        QMap<QString, QString> settings = ownSettings();
        settings.insert(u"copies"_s, QString::number(m_job.settings().copies));
        return {queue, receipt->id, asTexts(marksOf(m_job.ppd())), settings};
    }

    /// The same settings as a preset that lp prints with.
    Shown sendByLp()
    {
        EXPECT_TRUE(savePreset(m_job, u"paired"_s));
        QProcess lp;
        lp.start(u"lp"_s,
                 {u"-h"_s, m_printers.server().address(), u"-d"_s, u"plain/paired"_s, document()});
        EXPECT_TRUE(lp.waitForFinished(
            static_cast<int>(std::chrono::milliseconds(kLongestAnswer).count())));
        const QString said = QString::fromUtf8(lp.readAllStandardOutput());
        QMap<QString, QString> settings = ownSettings();
        for (const char *ofOneJob : {"page-set", "copies"})
            settings.remove(QLatin1String(ofOneJob));
        return {u"plain"_s, said.section(u'-', 1).section(u' ', 0, 0).toInt(),
                asTexts(marksOf(m_job.ppd())), settings};
    }

    /// And from the dialog, out of the saved instance. The panels may put right what does not go
    /// together: what is shown then is what counts.
    Shown sendFromInstance()
    {
        const QList<JobOption> saved = savedOptions({u"plain"_s, u"paired"_s});
        EXPECT_FALSE(saved.isEmpty());
        SessionOptions options;
        options.ppdPath = samplePPD(QLatin1String(GetParam()));
        options.bundlePath = builtBundle();
        PrinterSource source = m_job.source();
        source.queue.instance = u"paired"_s;
        m_job.setPrinter(source, openPrinter(options, *openPPD(options.ppdPath), saved));
        // A bundle that is being built anew has no rules for a while: its jobs say less.
        EXPECT_TRUE(m_job.session()->hasPlugIn());
        if (m_job.attributeRules() != m_rules) {
            ADD_FAILURE() << "the plug-in's rules have changed meanwhile";
            return {};
        }
        return send(u"plain"_s);
    }

    void check(const Shown &shown)
    {
        const NotedJob noted = m_printers.noted(shown.queue, shown.id);
        ASSERT_FALSE(noted.options.isEmpty()) << "job " << shown.id << " was not printed";
        EXPECT_EQ(asTexts(noted.marks()), shown.marks);
        for (const Twin &twin : kTwins) {
            const QString mark = QLatin1String(twin.keyword) + u'=' + QLatin1String(twin.choice);
            const QLatin1String value(twin.value);
            if (shown.marks.contains(mark)) {
                EXPECT_EQ(noted.options.value(QLatin1String(twin.attribute), value), value)
                    << "job " << shown.id;
            }
        }
        for (auto setting = shown.settings.cbegin(); setting != shown.settings.cend(); ++setting) {
            const QString printed = setting.key() == "copies"_L1
                                        ? QString::number(noted.copies)
                                        : noted.options.value(setting.key());
            if (setting.key() != kCollation) {
                EXPECT_EQ(printed, setting.value()) << setting.key().toStdString();
            }
        }
        EXPECT_EQ(noted.environment.value(u"PRINTER"_s),
                  shown.queue == "class"_L1 ? u"plain"_s : shown.queue);
        EXPECT_EQ(noted.environment.value(u"CLASS"_s),
                  shown.queue == "class"_L1 ? u"class"_s : QString());
    }

    LpoptionsFolder m_lpoptions;
    NotingPrinters m_printers;
    PrintJob m_job;
    QList<AttributeRule> m_rules; ///< of the printer when it was opened first
};

TEST_P(Arrival, IsWhatWasShown)
{
    const QList<Factor> all = factors();
    std::vector<int> sizes;
    for (const Factor &factor : all)
        sizes.push_back(static_cast<int>(factor.values.size()));
    std::vector<PairwiseRow> rows = pairwiseRows(sizes);
    const PairCount whole = countPairs(sizes, rows);
    ASSERT_EQ(whole.had, whole.all);
    const QList<QByteArray> wanted = qgetenv("VELKARO_SHOWN_ROWS").split('-');
    const std::size_t end = wanted.constFirst().isEmpty() ? kRows
                            : wanted.size() == 2          ? wanted.constLast().toUInt() + 1
                                                          : rows.size();
    rows.resize(std::min(end, rows.size()));
    const std::size_t first = std::min<std::size_t>(wanted.constFirst().toUInt(), rows.size());
    const QStringList queues{u"plain"_s, u"own"_s, u"class"_s};
    std::size_t jobs = 0;
    for (std::size_t begin = first; begin < rows.size(); begin += kBatch) {
        QList<Shown> sent;
        for (std::size_t row = begin; row < std::min(begin + kBatch, rows.size()); ++row) {
            settle(all, rows[row]);
            sent += send(queues[static_cast<qsizetype>(row % 3)]);
            if (row % kEveryPreset == 0)
                sent += {sendByLp(), sendFromInstance()};
        }
        for (const Shown &shown : sent)
            check(shown);
        jobs += static_cast<std::size_t>(sent.size());
        ASSERT_FALSE(HasFailure()) << "rows from " << begin;
    }
    RecordProperty("jobs", std::to_string(jobs));
    std::printf("%s: %zu factors, %zu pairs of values, %zu of them in %zu rows; %zu jobs\n",
                GetParam(), sizes.size(), whole.all, countPairs(sizes, rows).had, rows.size(),
                jobs);
}

INSTANTIATE_TEST_SUITE_P(SamplePrinters, Arrival,
                         testing::Values("velkaro-px-t900", "velkaro-px-330c", "velkaro-mx-j710dw",
                                         "velkaro-strange"));

} // namespace
