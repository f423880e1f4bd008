#pragma once

#include <QtCore/QString>

/// Which controls the rules switch off, beside items of pop-ups. A job for the fax has none of
/// these rules.

struct ControlFacts
{
    QString mediaType;               ///< the one that the pop-up shows; null without one
    QString quality;                 ///< likewise
    bool directionLeftAlone = false; ///< the paper is an envelope or a postcard
    bool slowDryingUnavailable = false;
    bool transparenciesPending = false;
    bool jpegUnavailable = false;
};

enum class BoxState {
    Usable,
    Disabled,       ///< its tick is left as it is
    DisabledAndOff, ///< its tick is taken away
};

struct ControlStates
{
    BoxState direction = BoxState::Usable; ///< bi-directional printing
    BoxState slowDrying = BoxState::Usable;
    BoxState mirror = BoxState::Usable;
    bool jpeg = true; ///< JPEG printing can be chosen

    friend bool operator==(const ControlStates &, const ControlStates &) = default;
};

ControlStates controlStates(const ControlFacts &facts);
