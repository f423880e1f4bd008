#pragma once

#include <QtCore/QVariant>

/// Reading values of the ticket, where a string may stand for a number and a number for a boolean.

/// A boolean; a number that is not zero; a string that begins with Y, T or a number other than
/// zero. Everything else is false.
bool ticketBoolean(const QVariant &value);

/// A number's whole part, or the decimal integer that a string begins with (0 without one). Too
/// large ones are held to the range of the type.
long long ticketInteger(const QVariant &value);
