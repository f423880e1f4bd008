#pragma once

#include <QtCore/QLatin1String>

// The keys of the ticket that a dialog writes. A plug-in's own keys begin with a domain of its own
// ("com.example.") and travel with the job.

/// What the keys begin with that are the platform's own and do not travel.
inline constexpr auto kPMPlatformKeyPrefix = QLatin1String("com.apple.");

/// The `PageSize` choice of the paper that the document is scaled to, a string; absent when it is
/// not scaled.
inline constexpr auto kPMMappedPaperKey =
    QLatin1String("com.apple.print.PageToPaperMappingMediaName");

/// Who matches the colours, one of the two values below. Without it the printer does.
inline constexpr auto kPMColorMatchingModeKey = QLatin1String("AP_ColorMatchingMode");
inline constexpr auto kPMVendorColorMatching = QLatin1String("AP_VendorColorMatching");
inline constexpr auto kPMApplicationColorMatching = QLatin1String("AP_ApplicationColorMatching");

/// The attribute of a PPD whose printer can leave colour matching to the application.
inline constexpr auto kPMCustomColorMatchingAttribute = "APSupportsCustomColorMatching";
