#pragma once

#include <QtCore/QString>

#include <array>

/// What people type lengths in.
struct LengthUnit
{
    double points; ///< of one
    int decimals;
    double step;
    const char *text; ///< with %1 for the number, to be translated ("LengthUnit")
};

/// Millimetres and inches.
extern const std::array<LengthUnit, 2> kLengthUnits;

/// The index of the one that is used in the user's country.
int usualLengthUnit();

/// A length in that unit, for people.
QString lengthText(double points);

/// What stands behind a number of that unit.
QString lengthSuffix();
