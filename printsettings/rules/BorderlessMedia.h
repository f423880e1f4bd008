#pragma once

#include <QtCore/QString>

/// What a borderless paper makes of the pending medium and quality.
struct BorderlessCorrection
{
    QString mediaType; ///< takes the place of the pending one; null: that one stays
    /// The quality becomes the default of this medium; null: the pending one stays.
    QString qualityOf;
    QString direction; ///< the choice of `VKBiDir`; null: the pending one stays
    bool slowDryingUnavailable = false;

    friend bool operator==(const BorderlessCorrection &, const BorderlessCorrection &) = default;
};

/// In the order of the members: a medium that has been set counts for what comes after.
BorderlessCorrection borderlessCorrection(const QString &mediaType, const QString &quality,
                                          const QString &paperName);
