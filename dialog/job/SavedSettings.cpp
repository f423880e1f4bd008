#include "dialog/job/SavedSettings.h"

#include "dialog/job/PageRanges.h"

#include <cups/cups.h>

#include <array>

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

void markAll(ppd_file_t *ppd, const QList<JobOption> &saved)
{
    cups_option_t *options = nullptr;
    int count = 0;
    for (const JobOption &option : saved)
        count = cupsAddOption(option.name.toUtf8().constData(), option.value.toUtf8().constData(),
                              count, &options);
    cupsMarkOptions(ppd, count, options);
    cupsFreeOptions(count, options);
}

/// True when the option is one of a layout, with a value that it can have.
bool takeLayout(JobLayout &layout, const JobOption &option)
{
    const LayoutSetting *setting = layoutSetting(option.name);
    const QString value = setting ? normalizedLayoutValue(*setting, option.value) : QString();
    if (!value.isNull())
        layout.*setting->value = value;
    return !value.isNull();
}

/// True when the option is one of the dialog's own settings, which then has it.
bool takeSetting(SavedSettings &settings, const JobOption &option)
{
    const int number = option.value.toInt();
    if (option.name == "copies"_L1)
        settings.settings.copies = qBound(1, number, kMostCopies);
    else if (option.name == "page-ranges"_L1)
        settings.settings.pageRanges = normalizedPageRanges(option.value);
    else if (option.name == "orientation-requested"_L1)
        settings.orientation = number >= kFirstLandscape && number <= kLastLandscape
                                   ? PMOrientation::Landscape
                                   : PMOrientation::Portrait;
    else
        return takeLayout(settings.settings.layout, option);
    return true;
}

} // namespace

SavedSettings applySavedOptions(ppd_file_t *ppd, const QList<JobOption> &saved)
{
    SavedSettings settings;
    if (ppd)
        markAll(ppd, saved);
    for (const JobOption &option : saved) {
        const bool isMapped =
            ppd && std::ranges::find(kMappedByCups, option.name) != kMappedByCups.end();
        if (!takeSetting(settings, option) && !isMapped && !isChoice(ppd, option.name))
            settings.others += option;
    }
    return settings;
}
