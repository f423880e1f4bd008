#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// The range of an enhancement value, where it crosses between the ticket and `outputBin`.
inline constexpr long long kEffectMinimum = -20;
inline constexpr long long kEffectMaximum = 20;

/// What a ticket value says: the decimal integer that a text begins with, or a number's whole part.
/// 0 for one outside the range, one that is neither, and none at all.
long long effectValueFromTicket(const QVariant &value);

/// The decimal text that the ticket gets for a value of `outputBin`; "0" for one outside the range
/// and for none at all.
QString effectTextForTicket(const QVariant &value);
