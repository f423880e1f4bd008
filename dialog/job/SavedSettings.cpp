#include "dialog/job/SavedSettings.h"

#include "dialog/host/PPDMarks.h"
#include "dialog/job/PageRanges.h"
#include "dialog/job/Papers.h"
#include "dialog/job/SavedJobOptions.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMTicketKeys.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// libcups turns these into choices of the PPD. They are not sent beside them as well: the user may
// pick another choice later.
constexpr std::array kMappedByCups{"media"_L1,           "PageSize"_L1,   "PageRegion"_L1,
                                   "sides"_L1,           "output-bin"_L1, "print-quality"_L1,
                                   "print-color-mode"_L1};

constexpr int kFirstLandscape = 4; // orientation-requested: landscape, reverse-landscape
constexpr int kLastLandscape = 5;
constexpr int kMostCopies = 999;

/// Whether libcups itself may mark the option: it reads over choices that the PPD lacks, but takes
/// any value of the user's own, and no several choices.
bool isForCups(ppd_file_t *ppd, const JobOption &option)
{
    ppd_option_t *found = findOption(ppd, option.name);
    return !found || isSameName(option.name, "PageSize"_L1) ||
           (found->ui != PPD_UI_PICKMANY && findChoice(found, option.value));
}

void markAll(ppd_file_t *ppd, SavedSettings &settings, const QList<JobOption> &saved)
{
    cups_option_t *options = nullptr;
    int count = 0;
    for (const JobOption &option : saved) {
        if (findOption(ppd, option.name))
            settings.settled += option.name;
        if (!isForCups(ppd, option)) {
            if (!forceChoice(ppd, option.name, option.value))
                settings.missing += option;
            continue;
        }
        count = cupsAddOption(option.name.toUtf8().constData(), option.value.toUtf8().constData(),
                              count, &options);
    }
    cupsMarkOptions(ppd, count, options);
    cupsFreeOptions(count, options);
}

// Servers make another number of one that they do not have, or none.
constexpr std::array kNumbers{"number-up"_L1, "job-priority"_L1};

bool isNumberOfLayout(const JobOption &option)
{
    return std::ranges::find(kNumbers, option.name) != kNumbers.end();
}

/// True when the option is one of a layout, with a value that it can have, or with a number.
bool takeLayout(JobLayout &layout, const JobOption &option)
{
    const LayoutSetting *setting = layoutSetting(option.name);
    const QString value = setting ? normalizedLayoutValue(*setting, option.value) : QString();
    if (!value.isNull())
        layout.*setting->value = value;
    return !value.isNull() || isNumberOfLayout(option);
}

/// Whether a setting of the dialog's own can have the value.
bool isUsable(const JobOption &option)
{
    bool isNumber = false;
    const int number = option.value.toInt(&isNumber);
    if (option.name == "copies"_L1)
        return number >= 1 && number <= kMostCopies;
    if (option.name == "orientation-requested"_L1)
        return isNumber;
    if (isNumberOfLayout(option))
        return !normalizedLayoutValue(*layoutSetting(option.name), option.value).isNull();
    if (option.name == "page-ranges"_L1)
        return !normalizedPageRanges(option.value).isNull();
    return !isScalingOption(option.name) || scalingOf(option);
}

/// True when the option is one of the dialog's own settings, which then has it, or its usual value.
bool takeSetting(SavedSettings &settings, const JobOption &option)
{
    const int number = option.value.toInt();
    if (!isUsable(option)) {
        settings.missing += option;
        settings.unusable += option;
    }
    if (option.name == "copies"_L1)
        settings.settings.copies = isUsable(option) ? number : 1;
    else if (option.name == "page-ranges"_L1)
        settings.settings.pageRanges = normalizedPageRanges(option.value);
    else if (option.name == "orientation-requested"_L1)
        settings.orientation = number >= kFirstLandscape && number <= kLastLandscape
                                   ? PMOrientation::Landscape
                                   : PMOrientation::Portrait;
    else if (isScalingOption(option.name))
        settings.settings.scaling = scalingOf(option).value_or(PrintScaling::Automatic);
    else
        return takeLayout(settings.settings.layout, option);
    return true;
}

/// True when the option is a value of the ticket. Without panels it is sent as it was saved.
bool takeTicketValue(SavedSettings &settings, ppd_file_t *ppd, const JobOption &option)
{
    const bool isOurs =
        ppd && (option.name == kPMColorMatchingModeKey || isVendorTicketKey(option.name)) &&
        !isChoice(ppd, option.name);
    if (isOurs)
        settings.ticket.insert(option.name, option.value);
    return isOurs;
}

/// Whether it looks like a keyword of a PPD: no attribute that servers, filters or people use.
bool isForeignKeyword(const JobOption &option)
{
    return originOf(option.name) == OptionOrigin::Ours && !isStandardSetting(option.name) &&
           !isVendorTicketKey(option.name);
}

/// Whether the option of the PPD takes the value, which may be a size of the user's own.
bool hasValue(ppd_file_t *ppd, const JobOption &option)
{
    const bool isPaper = isSameName(option.name, "PageSize"_L1);
    const std::optional<PMPaper> own =
        isPaper ? parseCustomPaper(option.value) : std::optional<PMPaper>();
    const std::optional<CustomLimits> limits =
        own ? customLimits(ppd) : std::optional<CustomLimits>();
    return (limits && isWithin(*limits, own->width, own->height)) ||
           !normalizedValue(ppd, option.name, option.value).isNull();
}

} // namespace

QList<JobOption> optionsForOthers(ppd_file_t *ppd, const QList<JobOption> &options)
{
    QList<JobOption> others;
    for (const JobOption &option : options) {
        const bool isLacking =
            findOption(ppd, option.name) ? !hasValue(ppd, option) : isForeignKeyword(option);
        if (ppd && isLacking)
            others += option;
    }
    return others;
}

SavedSettings applySavedOptions(ppd_file_t *ppd, const QList<JobOption> &saved)
{
    SavedSettings settings;
    if (ppd)
        markAll(ppd, settings, saved);
    for (const JobOption &option : saved) {
        const bool isMapped =
            ppd && std::ranges::find(kMappedByCups, option.name) != kMappedByCups.end();
        if (takeSetting(settings, option) || takeTicketValue(settings, ppd, option) || isMapped ||
            isChoice(ppd, option.name))
            continue;
        settings.others += option;
        if (ppd && isForeignKeyword(option))
            settings.missing += option;
    }
    // A landscape job says it by itself, where its documents need it. Left among the others it
    // would stay when the job is turned upright.
    if (settings.orientation == PMOrientation::Landscape)
        settings.others.removeIf(
            [](const JobOption &option) { return option.name == "pdfAutoRotate"_L1; });
    return settings;
}
