#pragma once

#include "platform/Export.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// A text of a PPD as people read it: UTF-8, on one line. libcups cuts texts at 80 bytes, which may
/// be in the middle of a character: what is left of it is dropped. Null for a null pointer.
VELKARO_PLATFORM_EXPORT QString ppdText(const char *text);

/// A keyword or choice name of a PPD; null for a null pointer.
VELKARO_PLATFORM_EXPORT QString ppdName(const char *name);

/// The name as libcups takes it. A name that is not ASCII becomes one that no PPD has.
VELKARO_PLATFORM_EXPORT QByteArray ppdBytes(const QString &name);

/// Names are looked up as libcups does it, without regard to case: the answer may spell the name
/// otherwise. What the PPD spells is what is marked and sent.

/// Whether two names are the same to libcups.
VELKARO_PLATFORM_EXPORT bool isSameName(const QString &one, const QString &other);

/// The PPD's option of this keyword, owned by the PPD; null without one.
VELKARO_PLATFORM_EXPORT ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword);

/// The option's choice of this name, owned by the PPD; null without one, and for a value of the
/// user's own ("Custom.72x72").
VELKARO_PLATFORM_EXPORT ppd_choice_t *findChoice(ppd_option_t *option, const QString &choice);

/// The name of the keyword's marked choice as the PPD spells it; null when nothing is marked.
VELKARO_PLATFORM_EXPORT QString markedChoice(ppd_file_t *ppd, const QString &keyword);
