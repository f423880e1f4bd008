#include "dialog/job/ReservedNames.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace {

// Sources: the IANA registry of IPP attributes (operation, job template, job description), the
// table by which libcups 2.4 encodes options (ipp_options in cups/encode.c), and what cupsd and the
// filters of CUPS look up in a job.

// Every name that begins so is an attribute.
constexpr auto kFamilies = std::to_array<std::string_view>({
    "document-",
    "job-",
    "marker-",
    "media-",
    "notify-",
    "ppd-",
    "printer-",
    "requesting-user-",
});

// The others. Sorted.
constexpr auto kAttributes = std::to_array<std::string_view>({
    "attributes-charset",
    "attributes-natural-language",
    "auth-info",
    "auth-info-required",
    "chamber-humidity",
    "chamber-temperature",
    "charge-info-message",
    "client-info",
    "compression",
    "compression-accepted",
    "confirmation-sheet-print",
    "copies",
    "cover-back",
    "cover-front",
    "cover-sheet-info",
    "cups-version",
    "date-time-at-completed",
    "date-time-at-creation",
    "date-time-at-processing",
    "destination-accesses",
    "destination-uris",
    "detailed-status-message",
    "device-uri",
    "errors-count",
    "exclude-schemes",
    "feed-orientation",
    "fetch-status-code",
    "fetch-status-message",
    "finishings",
    "finishings-col",
    "first-index",
    "first-job-id",
    "fit-to-page",
    "font-name-requested",
    "font-size-requested",
    "force-front-side",
    "identify-actions",
    "image-orientation",
    "imposition-template",
    "include-schemes",
    "input-attributes",
    "insert-sheet",
    "ipp-attribute-fidelity",
    "label-mode-configured",
    "last-document",
    "limit",
    "materials-col",
    "media",
    "message",
    "multiple-document-handling",
    "multiple-object-handling",
    "multiple-operation-time-out-action",
    "my-jobs",
    "natural-scaling",
    "number-of-documents",
    "number-of-intervening-jobs",
    "number-of-retries",
    "number-up",
    "number-up-layout",
    "operations-supported",
    "orientation-requested",
    "original-requesting-user-name",
    "output-attributes",
    "output-bin",
    "output-device",
    "output-device-assigned",
    "output-device-uuid",
    "output-mode",
    "overrides",
    "page-border",
    "page-bottom",
    "page-delivery",
    "page-label",
    "page-left",
    "page-order-received",
    "page-ranges",
    "page-right",
    "page-set",
    "page-top",
    "pages",
    "pages-per-subset",
    "pclm-source-resolution",
    "pdl-init-file",
    "persistent-jobs",
    "platform-shape",
    "platform-temperature",
    "port-monitor",
    "preferred-attributes",
    "presentation-direction-number-up",
    "print-accuracy",
    "print-base",
    "print-color-mode",
    "print-content-optimize",
    "print-darkness",
    "print-objects",
    "print-processing-attributes-supported",
    "print-quality",
    "print-rendering-intent",
    "print-scaling",
    "print-speed",
    "print-supports",
    "profile-uri-actual",
    "proof-copies",
    "proof-print",
    "purge-jobs",
    "queued-job-count",
    "raw",
    "requested-attributes",
    "resource-id",
    "restart-get-interval",
    "retry-interval",
    "retry-time-out",
    "separator-sheets",
    "sheet-collate",
    "sides",
    "status-code",
    "status-message",
    "system-uri",
    "time-at-completed",
    "time-at-creation",
    "time-at-processing",
    "title",
    "unsupported-attributes",
    "which-jobs",
    "which-printers",
    "x-dimension",
    "x-image-position",
    "x-image-shift",
    "x-side1-image-shift",
    "x-side2-image-shift",
    "y-dimension",
    "y-image-position",
    "y-image-shift",
    "y-side1-image-shift",
    "y-side2-image-shift",
});

// Words for the filters of CUPS, not for servers. Makers use the same words, capitalised, as
// keywords of their own, and `OutputOrder` and `Resolution` are of every PPD: exactly these alone.
// Sorted.
constexpr auto kFilterOptions = std::to_array<std::string_view>({
    "blackplot",   "booklet",    "brightness", "columns", "cpi",         "fitplot",  "gamma",
    "hue",         "landscape",  "lpi",        "mirror",  "outputorder", "penwidth", "ppi",
    "prettyprint", "resolution", "saturation", "scaling", "wrap",
});

static_assert(std::ranges::is_sorted(kAttributes) && std::ranges::is_sorted(kFilterOptions));

constexpr std::string_view kDefault = "-default"; // a printer's own value of an attribute

} // namespace

bool isReservedName(const QString &name)
{
    const std::string exact = name.toStdString();
    const std::string small = name.toLower().toStdString();
    std::string_view attribute = small;
    if (attribute.ends_with(kDefault))
        attribute.remove_suffix(kDefault.size());
    return std::ranges::any_of(
               kFamilies, [&](std::string_view family) { return small.starts_with(family); }) ||
           std::ranges::binary_search(kAttributes, attribute) ||
           std::ranges::binary_search(kFilterOptions, std::string_view(exact));
}
