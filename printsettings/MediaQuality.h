#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Which print qualities (choices of `VKResolution`) go with a medium (choice of `VKMediaType`).

struct AllowedQualities
{
    QStringList qualities; ///< in the order of the pop-up
    /// The medium that must take the place of the one asked about; null: that one may stay.
    QString replacement;
};

/// `discPaper`: the paper is a printable disc; `duplex`: two-sided printing is on. A null medium is
/// a medium that nobody knows.
AllowedQualities allowedQualities(const QString &mediaType, bool discPaper, bool duplex);

/// The quality that a medium starts with on the paper of this name.
QString defaultQuality(const QString &mediaType, const QString &paperName);
