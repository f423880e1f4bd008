#pragma once

#include <QtCore/QString>

/// What both panels read in a PPD beside their own keywords.

/// Where the job goes: to the printer, or out by fax.
inline constexpr auto kOutputKeyword = QLatin1String("VKOutput");
inline constexpr auto kFaxChoice = QLatin1String("FAX");
