#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Yes-or-no questions about the name of a medium, of a paper or of a model.
///
/// A paper's name is a base size ("A4"), maybe with a variant behind a point ("A4.Fullbleed",
/// "A3.ShortGrain"), or one of the printer's own ("VkA3", "VkA3_S", "VkHagaki_B"). Comparisons are
/// exact and case-sensitive. "Without its variant" means without the last point and all behind it,
/// also where the point belongs to the size: "3.5x5" is then "3". A null name gets the answer no.

/// Media that count as plain paper, and whether the medium is one of them.
QStringList plainPaperMedia();
bool isKindOfPlainPaper(const QString &mediaType);

/// Whether the paper is the borderless form of the base size: its name begins with the size and
/// ".Fullbleed", or with "Vk", the size and "_B".
bool isBorderelessForPaperSize(const QString &paperName, const QString &baseSize);

/// Postcards.
bool isKindOfPostcardPaperSize(const QString &paperName);

/// Papers that the second tray takes, compared without their variant.
bool allowTray2PaperSize(const QString &paperName);

/// Papers that are fed along their short edge, compared without their variant.
bool isKindOfLandscapePaper(const QString &paperName);

/// Papers that are fed along their long edge, compared as a whole.
bool isKindOfPortraitPaper(const QString &paperName);

/// Papers that are fed by hand: none in this family of models.
bool isKindOfManualFeedPaper(const QString &paperName);

/// Japanese envelopes, compared without their variant.
bool isKindOfJPEnvelope(const QString &paperName);

/// False for the models of the business line and true for every other name: the inverse of what the
/// name says. Callers are written for that answer.
bool isBusinessModel(const QString &modelName);

/// Media whose own colours are the vivid ones.
bool isDefaultMediaTypeForVividColorMode(const QString &mediaType);
