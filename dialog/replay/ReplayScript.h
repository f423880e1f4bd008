#pragma once

#include "dialog/replay/ReplayEvent.h"
#include "dialog/work/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>

#include <optional>

/// Reads one line of a script: the event that it says, none of a blank line or a comment. Paths in
/// it are relative to `folder`.
Result<std::optional<ReplayEvent>> readReplayLine(const QByteArray &line, const QDir &folder);
