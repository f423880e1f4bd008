#pragma once

#include <QtCore/qglobal.h>

#include <cstdint>

/// The last change of an enhancement value that was handled, one record for the whole process: a
/// slider repeats its action while it is held, and a value that has not changed since needs no new
/// picture.
///
/// Every Color Settings panel of the process shares it, so a reset in one panel also forgets the
/// last change of another: at worst a picture is drawn once more than needed. It is touched on the
/// main thread only.
struct Q_DECL_EXPORT EffectValRecord
{
    std::int64_t code = 0;  ///< the tag of the control; -1 after a reset
    std::int64_t value = 0; ///< the whole part of the control's value
};

extern Q_DECL_EXPORT EffectValRecord EffectVal;

/// Forgets the last change.
void resetEffectVal();

/// Whether a control with this tag that shows this value tells nothing new. Values are compared in
/// single precision and with their fraction: 7.4 after 7 is new.
bool isHandledChange(int tag, double value);

/// Records the change: the tag and the value's whole part.
void recordChange(int tag, double value);
