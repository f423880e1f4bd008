#include "dialog/host/CustomParameters.h"
#include "dialog/job/JobOptions.h"
#include "dialog/job/ReservedNames.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/fuzz/Harnesses.h"
#include "tests/fuzz/InputFile.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kPicks = 4;
constexpr qsizetype kBytesPerPick = 3; // which option, which choice, by whom

/// What the user alone settles, and here nobody has.
constexpr std::array kUnsettled{"copies"_L1, "job-hold-until"_L1, "page-ranges"_L1,
                                "printer-uri"_L1, "raw"_L1};

/// What the dialog says in the terms of IPP of its own accord.
constexpr std::array kOwnNames{"finishings"_L1,    "fit-to-page"_L1,   "print-color-mode"_L1,
                               "print-quality"_L1, "print-scaling"_L1, "sides"_L1};

std::vector<ppd_option_t *> optionsOf(ppd_file_t *ppd)
{
    std::vector<ppd_option_t *> options;
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        if (option->num_choices > 0)
            options.push_back(option);
    return options;
}

/// Few inputs pick in the panels' controls: showing them takes longer than all else. A reserved
/// keyword there would be the user's own setting.
void pick(PrintJob &job, const QByteArray &wish)
{
    const std::vector<ppd_option_t *> options = optionsOf(job.ppd());
    if (options.empty())
        return;
    const auto at = [&](qsizetype index) { return static_cast<uchar>(wish[index]); };
    const ppd_option_t &option = *options[at(0) % options.size()];
    const QString keyword = ppdName(option.keyword);
    const QString choice = ppdName(option.choices[at(1) % option.num_choices].choice);
    if (at(2) >= 0xF8 && isChoice(job.ppd(), keyword))
        static_cast<void>(makeSettings(job, {{keyword, choice}}));
    else
        job.mark(keyword, choice);
}

/// The picks stand in the last bytes, which in a PPD are hardly ever more than a comment.
void makePicks(PrintJob &job, const QByteArray &ppd)
{
    for (qsizetype index = 0; (index + 1) * kBytesPerPick <= ppd.size() && index < kPicks; ++index)
        pick(job, ppd.last((index + 1) * kBytesPerPick).first(kBytesPerPick));
}

bool isKeyOfTicket(const QString &name)
{
    return name.contains(u'.') || name == "AP_ColorMatchingMode"_L1;
}

void checkOption(ppd_file_t *ppd, const JobOption &option)
{
    require(isSendable(option), "every option of a job may be sent");
    require(std::ranges::none_of(kUnsettled,
                                 [&](QLatin1String name) {
                                     return option.name.compare(name, Qt::CaseInsensitive) == 0;
                                 }),
            "no PPD says how much is printed, when or where");
    if (isReservedName(option.name)) {
        require(std::ranges::find(kOwnNames, option.name) != kOwnNames.end(),
                "a PPD's own option never stands for an attribute of IPP");
        return;
    }
    const bool isCustomPaper =
        option.name == "PageSize"_L1 && option.value.startsWith("Custom."_L1);
    const bool isChoiceOfPPD = findChoice(findOption(ppd, option.name), option.value) != nullptr;
    const bool isOwnValue =
        !parametersOf(option.value, customParameters(ppd, option.name)).isEmpty();
    require(isChoiceOfPPD || isCustomPaper || isOwnValue || isKeyOfTicket(option.name),
            "what is sent as a choice is an option of the PPD with that choice, or a value that "
            "the option takes beside its choices");
}

} // namespace

/// A PPD that opens gives a job that may be sent, whatever is picked in it; any other gives a
/// sentence.
void runPPD(const QByteArray &ppd)
{
    const FileDescriptor file = inputFile(ppd);
    SessionOptions options;
    options.ppdPath = pathOf(file);
    options.bundlePath = builtBundle();
    ScriptedAnswers answers(true);
    auto opened = openPPD(options.ppdPath, PPDTexts::InUserLanguage);
    require(opened || !opened.sentence().isNull(), "a PPD opens, or a sentence says why not");
    if (!opened)
        return;
    PrintJob job;
    job.setPrinter({}, openPrinter(options, *std::move(opened), {}));
    makePicks(job, ppd);
    job.session()->askShouldPrint();
    answers.answerSheets();
    for (const HostPanel &panel : job.session()->panels())
        job.session()->summary(panel);
    for (const JobOption &option : job.options().options)
        checkOption(job.ppd(), option);
}
