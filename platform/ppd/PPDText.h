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

/// The PPD's option of exactly this keyword, owned by the PPD; null without one. (libcups by itself
/// finds "pagesize" too.)
VELKARO_PLATFORM_EXPORT ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword);

/// The option's choice of exactly this name, owned by the PPD; null without one.
VELKARO_PLATFORM_EXPORT ppd_choice_t *findChoice(ppd_option_t *option, const QString &choice);

/// The name of the keyword's marked choice; null when nothing is marked.
VELKARO_PLATFORM_EXPORT QString markedChoice(ppd_file_t *ppd, const QString &keyword);
