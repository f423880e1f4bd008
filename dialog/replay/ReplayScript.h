#pragma once

#include "dialog/replay/ReplayEvent.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>

#include <optional>

/// What a line of a script says: an event, one sentence about what is wrong with it, or neither
/// (a blank line or a comment).
struct ReplayLine
{
    std::optional<ReplayEvent> event;
    QString error;
};

/// Reads one line of a script. Paths in it are relative to `folder`.
ReplayLine readReplayLine(const QByteArray &line, const QDir &folder);
