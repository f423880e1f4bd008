#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostSettings = 5;
constexpr int kOrders = 5; // of each set, beside the first one
constexpr int kSets = 10;  // of each printer; VELKARO_REQUEST_SETS=200 is the whole proof

using Settings = QList<RequestedChoice>;

/// What settings came to: the fault and everything that would be sent.
struct Outcome
{
    QString sentence;
    QStringList options;

    bool operator==(const Outcome &) const = default;
};

void PrintTo(const Outcome &outcome, std::ostream *stream)
{
    *stream << outcome.sentence.toStdString() << '\n' << outcome.options.join(u'\n').toStdString();
}

Settings allChoices(ppd_file_t *ppd)
{
    Settings all{{u"copies"_s, u"2"_s}, {u"orientation-requested"_s, u"4"_s}};
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        for (int index = 0; index < option->num_choices; ++index)
            all += {ppdName(option->keyword), ppdName(option->choices[index].choice)};
    return all;
}

class RequestOrder : public testing::TestWithParam<const char *>
{
protected:
    RequestOrder()
    {
        m_options.ppdPath = samplePPD(QLatin1String(GetParam()));
        m_options.bundlePath = builtBundle();
        const OpenedPPD opened = *openPPD(m_options.ppdPath);
        for (const RequestedChoice &choice : allChoices(opened.ppd.get()))
            m_choices[choice.keyword] += choice;
    }

    /// Settings of as many different keywords. Each keyword is as likely as another, but for those
    /// on which the rules turn: they come in every other set.
    Settings randomSettings()
    {
        static const QStringList turning{u"VKMediaType"_s, u"VKResolution"_s, u"Duplex"_s,
                                         u"PageSize"_s};
        QStringList keywords = m_choices.keys();
        std::ranges::shuffle(keywords, m_random);
        keywords = keywords.mid(0, 1 + static_cast<qsizetype>(m_random() % kMostSettings));
        if (m_random() % 2)
            keywords[0] = turning[static_cast<qsizetype>(m_random() % 4)];
        keywords.removeDuplicates();
        Settings settings;
        for (const QString &keyword : std::as_const(keywords)) {
            const Settings choices = m_choices.value(keyword);
            if (!choices.isEmpty())
                settings += choices[static_cast<qsizetype>(
                    m_random() % static_cast<std::size_t>(choices.size()))];
        }
        return settings;
    }

    Outcome outcomeOf(const Settings &settings)
    {
        m_job.setPrinter({}, openPrinter(m_options, *openPPD(m_options.ppdPath), {}));
        m_job.settings() = {};
        m_job.setOrientation(PMOrientation::Portrait);
        ScriptedAnswers answers(true);
        Outcome outcome;
        outcome.sentence = makeSettings(m_job, settings, [&](const RequestedChoice &) {
                               answers.answerSheets();
                           }).sentence();
        for (const JobOption &option : m_job.options().options)
            outcome.options += option.name + u'=' + option.value;
        return outcome;
    }

    std::minstd_rand m_random{12};

private:
    SessionOptions m_options;
    QMap<QString, Settings> m_choices; ///< by keyword
    PrintJob m_job;
};

TEST_P(RequestOrder, ChangesNothing)
{
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("VELKARO_REQUEST_SETS", &isGiven);
    int lost = 0;
    for (int set = 0; set < (isGiven ? given : kSets); ++set) {
        Settings settings = randomSettings();
        const Outcome first = outcomeOf(settings);
        lost += first.sentence.isNull() ? 0 : 1;
        std::ranges::reverse(settings);
        for (int order = 0; order < kOrders; ++order) {
            ASSERT_EQ(outcomeOf(settings), first) << "set " << set;
            std::ranges::shuffle(settings, m_random);
        }
    }
    RecordProperty("sets with a loss", lost);
    EXPECT_GT(lost, 0) << "nothing stood in the way of anything";
}

INSTANTIATE_TEST_SUITE_P(SamplePrinters, RequestOrder,
                         testing::Values("velkaro-px-t900", "velkaro-px-330c", "velkaro-mx-j710dw",
                                         "velkaro-strange"));

} // namespace
