#pragma once

#include <QtCore/QString>

#include <optional>

/// What follows from the medium that is selected, beside its qualities (MediaQuality.h).
struct MediumEffects
{
    bool slowDrying = false;     ///< slow drying can be chosen
    bool slowDryingOn = false;   ///< its default
    bool bothDirections = false; ///< the default of bi-directional printing
    /// Whether natural colour matching is called for, told to the Color Settings panel twice: for
    /// the address side of a postcard the two differ, and the second one holds.
    bool naturalAtFirst = false;
    bool natural = false;
    bool transparencies = false; ///< the medium is transparencies
    bool tray2 = false;          ///< the second tray takes it

    friend bool operator==(const MediumEffects &, const MediumEffects &) = default;
};

MediumEffects mediumEffects(const QString &mediaType);

/// Slow drying, which also depends on who matches the colours: when the application does, it cannot
/// be chosen, and the box keeps its tick.
struct SlowDrying
{
    bool available = false;
    std::optional<bool> defaultTick; ///< none: the box is left as it is

    friend bool operator==(const SlowDrying &, const SlowDrying &) = default;
};
SlowDrying slowDrying(const MediumEffects &effects, bool vendorColorMatching);
