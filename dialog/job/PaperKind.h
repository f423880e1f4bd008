#pragma once

#include <QtCore/QString>

/// What a person takes a paper for.
enum class PaperKind { Standard, Photo, EnvelopeOrCard, Disc };

/// The kind of a paper, by the name of its `PageSize` choice where that is one that everybody uses
/// (of the PPD specification, or self-describing), else by its size in points, upright or not.
PaperKind paperKind(const QString &choice, double width, double height);
