#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Which print qualities (choices of `VKResolution`) go with a medium (choice of `VKMediaType`),
/// and which of them the paper takes away. A null medium is a medium that nobody knows.

/// The media that have qualities of their own. All others are taken for plain paper.
QStringList knownMedia();

struct AllowedQualities
{
    QStringList qualities; ///< in the order of the pop-up
    /// The medium that must take the place of the one asked about; null: that one may stay.
    QString replacement;
};

/// `discPaper`: the paper is a printable disc; `duplex`: two-sided printing is on.
AllowedQualities allowedQualities(const QString &mediaType, bool discPaper, bool duplex);

/// The quality that a medium starts with on the paper of this name.
QString defaultQuality(const QString &mediaType, const QString &paperName);

/// The qualities that cannot be picked on a borderless paper of this name, whatever the medium.
QStringList unavailableWithoutBorders(const QString &paperName);

/// Whether a quality that is shown beside a medium was left behind by a disc, and the medium's own
/// must be shown instead. Never while the paper is a disc.
bool isLeftFromDisc(const QString &quality, const QString &mediaType, bool discPaper);

/// Whether the paper puts the quality of plain paper back to its default: borderless Letter, on the
/// one model (by its "cupsModelNumber") that this rule is for.
bool resetsQuality(const QString &paperName, int modelNumber);
