#pragma once

#include <QtCore/QStringList>

/// What the rules of the Color Settings panel look at.
struct ColorJob
{
    bool vendorMatching = false; ///< the printer's own colour settings apply
    bool mono = false;           ///< colour mode is mono
    bool enhancementOn = false;  ///< the enhancement switch is pending as "ON"
};

/// What may be chosen, beside the halftone pattern and the enhancement switch.
struct ColorStates
{
    bool monoColor = false;        ///< colour matching
    bool colorEnhancement = false; ///< brightness and contrast
    bool color = false;            ///< the three colour gains

    friend bool operator==(const ColorStates &, const ColorStates &) = default;
};
ColorStates colorStates(const ColorJob &job);

/// The supported keywords without those that the summary leaves out: what the job's settings make
/// void, and the enhancement values, which are summarised as numbers.
QStringList colorSummaryKeywords(const QStringList &supported, const ColorJob &job);

/// The enhancement values that the summary lists, in order; none while they do not apply.
QStringList effectSummaryKeywords(const ColorJob &job);
