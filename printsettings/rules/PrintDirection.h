#pragma once

#include <QtCore/QString>

/// Bi-directional printing (`VKBiDir`: "ON" and "OFF"), by what calls for it.

/// A medium: "ON" for plain paper, "OFF" for every other one.
QString directionOfMedium(const QString &mediaType);

/// A thickness that was picked: "OFF" on a custom paper as thick as an envelope, else "ON" for
/// plain paper. Null: the pending one stays.
QString directionAfterThickness(bool customEnvelope, const QString &mediaType);

/// A medium and a quality that are always printed in one direction.
bool printsInOneDirection(const QString &mediaType, const QString &quality);
