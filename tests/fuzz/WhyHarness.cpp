#include "dialog/advice/Advising.h"
#include "dialog/advice/PossibleChanges.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/printing/SettingState.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/fuzz/Harnesses.h"
#include "tests/fuzz/InputFile.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <vector>

namespace {

constexpr qsizetype kWishBytes = 4;   // the choice that is asked for, and one that is made before
constexpr qint64 kLongestWait = 3000; // ms, by the clock: then nobody waits for the answer

/// A choice by two bytes; a null keyword for a PPD without any.
PPDMark choiceBy(ppd_file_t *ppd, const QByteArray &bytes)
{
    std::vector<const ppd_option_t *> options;
    for (const ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        if (option->num_choices > 0)
            options.push_back(option);
    if (options.empty() || bytes.size() < 2)
        return {};
    const ppd_option_t &option = *options[static_cast<uchar>(bytes[0]) % options.size()];
    const int choice = static_cast<uchar>(bytes[1]) % option.num_choices;
    return {ppdName(option.keyword), ppdName(option.choices[choice].choice)};
}

void checkChanges(const PrintJob &job)
{
    for (const PPDMark &change : possibleChanges(job))
        require(findChoice(findOption(job.ppd(), change.keyword), change.choice) != nullptr,
                "what can be picked is a choice of the PPD");
}

void checkAdvice(PrintJob &job, const PPDMark &wanted, const Advice &advice)
{
    require(!advice.sentence.isEmpty() && displayText(advice.sentence) == advice.sentence,
            "an answer is a line of text");
    require(advice.remedies.isEmpty() == (advice.outcome != Advice::Outcome::Possible),
            "there are remedies where the choice is to be had with them");
    if (advice.remedies.isEmpty())
        return;
    ScriptedAnswers answers(true);
    applyRemedy(job, advice.remedies.constFirst(), wanted);
    savePreparedPanels(*job.session());
    answers.answerSheets();
    require(hasSetting(job, {wanted.keyword, wanted.choice}), "a remedy gives the choice");
}

} // namespace

/// Of a PPD that opens it is told why a choice is not there, whatever is in the way; the session
/// stays as it was, and what is said to give the choice does.
void runWhy(const QByteArray &ppd)
{
    const FileDescriptor file = inputFile(ppd);
    SessionOptions options;
    options.ppdPath = pathOf(file);
    options.bundlePath = builtBundle();
    auto opened = openPPD(options.ppdPath);
    if (!opened || ppd.size() < kWishBytes)
        return;
    PrintJob job;
    job.setPrinter({}, openPrinter(options, *std::move(opened), {}));
    ScriptedAnswers answers(true);
    prepareControls(*job.session());
    if (const PPDMark made = choiceBy(job.ppd(), ppd.last(kWishBytes)); !made.keyword.isNull())
        makeSetting(job, {made.keyword, made.choice});
    answers.answerSheets();
    checkChanges(job);
    const PPDMark choice = choiceBy(job.ppd(), ppd.last(kWishBytes / 2));
    const Result<PPDMark> wanted = choiceOfPPD(*job.session(), choice.keyword, choice.choice);
    if (choice.keyword.isNull() || !wanted)
        return;
    QElapsedTimer clock;
    clock.start();
    const auto isGivenUp = [&] { return clock.hasExpired(kLongestWait); };
    const SettingState before = settingState(job);
    const std::optional<Advice> advice = adviceOn(*job.session(), *wanted, isGivenUp);
    require(advice || isGivenUp(), "what somebody waits for is answered");
    const SettingState after = settingState(job);
    require(after.marks == before.marks && after.shown == before.shown,
            "asking changes no setting");
    if (advice)
        checkAdvice(job, *wanted, *advice);
}
