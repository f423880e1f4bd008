#include "dialog/job/SavedJobOptions.h"

#include "dialog/job/ReservedNames.h"
#include "platform/printmanager/PMTicketKeys.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kNever{"document-format"_L1, "job-uri"_L1, "printer-uri"_L1, "raw"_L1};

constexpr std::array kSettings{
    // The dialog's own.
    "copies"_L1, "fit-to-page"_L1, "orientation-requested"_L1, "page-ranges"_L1,
    "print-color-mode"_L1, "print-quality"_L1, "print-scaling"_L1, "booklet"_L1,
    "notify-recipient-uri"_L1, "pdfAutoRotate"_L1,
    // What the manual of CUPS lists for lpoptions.
    "brightness"_L1, "columns"_L1, "cpi"_L1, "finishings"_L1, "gamma"_L1, "hue"_L1,
    "job-hold-until"_L1, "job-priority"_L1, "job-sheets"_L1, "landscape"_L1, "lpi"_L1, "mirror"_L1,
    "multiple-document-handling"_L1, "natural-scaling"_L1, "number-up"_L1, "number-up-layout"_L1,
    "output-bin"_L1, "outputorder"_L1, "page-border"_L1, "page-bottom"_L1, "page-left"_L1,
    "page-right"_L1, "page-set"_L1, "page-top"_L1, "ppi"_L1, "prettyprint"_L1, "saturation"_L1,
    "scaling"_L1, "sides"_L1, "wrap"_L1};

} // namespace

OptionOrigin originOf(const QString &option)
{
    const bool isNever = std::ranges::any_of(
        kNever, [&](QLatin1String name) { return option.compare(name, Qt::CaseInsensitive) == 0; });
    if (isNever)
        return OptionOrigin::Never;
    // A name that is neither reserved nor the platform's is a keyword of a PPD or a vendor's key.
    const bool isForeign =
        isReservedName(option) || option.startsWith(kPMPlatformKeyPrefix, Qt::CaseInsensitive);
    return isStandardSetting(option) || !isForeign ? OptionOrigin::Ours : OptionOrigin::Foreign;
}

bool isStandardSetting(const QString &option)
{
    return std::ranges::find(kSettings, option) != kSettings.end();
}
