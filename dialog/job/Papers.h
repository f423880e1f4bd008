#pragma once

#include "platform/ppd/CupsPPD.h"
#include "platform/printmanager/PMPageFormat.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

/// The papers of a printer and the sizes that a user may give. All sizes are in points unless a
/// name says otherwise.

inline constexpr double kPointsPerInch = 72.0;
inline constexpr double kPointsPerMillimetre = 72.0 / 25.4;

/// The PPD's paper of that `PageSize` choice; none when the PPD has no such choice.
std::optional<PMPaper> paperOfChoice(ppd_file_t *ppd, const QString &choice);

/// A paper of a size that the user gave.
PMPaper customPaper(double width, double height);

/// The text of a paper for people: the PPD's text of the choice, else the size in millimetres.
QString paperText(ppd_file_t *ppd, const PMPaper &paper);

/// Whether the printer leaves a part of the sheet white. Of a printer without a PPD nobody knows:
/// it may.
bool hasMargins(ppd_file_t *ppd, const PMPaper &paper);

/// The sizes that the PPD lets a user give.
struct CustomLimits
{
    double minWidth = 0;
    double maxWidth = 0;
    double minHeight = 0;
    double maxHeight = 0;
};

/// None when the PPD takes no custom sizes.
std::optional<CustomLimits> customLimits(ppd_file_t *ppd);

/// Where a length lies as compared with its limits.
enum class LengthFault { None, TooSmall, TooLarge };

LengthFault faultOfLength(double length, double least, double most);

/// Whether both lengths are within the limits.
bool isWithin(const CustomLimits &limits, double width, double height);

/// The paper of a text such as "Custom.100x150mm". Units are pt, mm, cm and in; without one the
/// numbers are points. None for any other text.
std::optional<PMPaper> parseCustomPaper(const QString &text);
