#pragma once

#include "platform/Export.h"

#include <QtCore/QStringList>

/// The user's preferred languages as language tags, first one first; never empty.
///
/// An ordinary Japanese user's first language is "ja": the tag names a region only where it is not
/// the language's own ("en-GB", "ja-US").
VELKARO_PLATFORM_EXPORT QStringList preferredLanguages();

/// Replaces the languages for the process, as a script or an option asks. An empty list brings the
/// user's own back.
VELKARO_PLATFORM_EXPORT void setPreferredLanguages(const QStringList &languages);

/// The tag of a locale name such as "ja_JP.UTF-8" or "en-GB"; null for "C", "POSIX" and nonsense.
VELKARO_PLATFORM_EXPORT QString languageTag(const QString &localeName);
