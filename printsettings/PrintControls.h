#pragma once

#include "panel/KeywordControls.h"

/// The controls of the Print Settings panel. Mirror printing has two keywords and one box: both
/// lead to the box, and the box leads back to the one that the printer has.
inline constexpr KeywordControl kPrintControls[] = {
    {QLatin1String("VKResolution"), QLatin1String("resolutionPopup"),
     QLatin1String("resolutionLabel")},
    {QLatin1String("VKMediaType"), QLatin1String("mediaTypePopup"),
     QLatin1String("mediaTypeLabel")},
    {QLatin1String("VKColorPaperThick"), QLatin1String("paperThickPopup"),
     QLatin1String("paperThickLabel")},
    {QLatin1String("VKInputSlot"), QLatin1String("paperFeedPopup"),
     QLatin1String("paperFeedLabel")},
    {QLatin1String("VKMonoColor"), QLatin1String("monoColorPopup"),
     QLatin1String("monoColorLabel")},
    {QLatin1String("VKSlowDrying"), QLatin1String("slowDryButton"), {}},
    {QLatin1String("VKBiDir"), QLatin1String("biDirButton"), {}},
    {QLatin1String("VKMirror"), QLatin1String("mirrorButton"), {}},
    {QLatin1String("MirrorPrint"), QLatin1String("mirrorButton"), {}},
    {QLatin1String("VKReverse"), QLatin1String("reverseButton"), {}},
    {QLatin1String("VKJpeg"), QLatin1String("jpegPopup"), QLatin1String("jpegLabel")},
    {QLatin1String("VKDuplexMode"), QLatin1String("duplexPopup"), QLatin1String("duplexLabel")},
    {QLatin1String("VKVertLineAlignA3B4Ledger"), QLatin1String("vertLineAlignA3Button"), {}},
    {QLatin1String("VKVertLineAlignA4Letter"), QLatin1String("vertLineAlignA4Button"), {}},
    {QLatin1String("VKVertLineAlignOther"), QLatin1String("vertLineAlignOtherButton"), {}},
    {QLatin1String("VKVertLineAlignDedicated"), QLatin1String("vertLineAlignQM43Button"), {}},
};
