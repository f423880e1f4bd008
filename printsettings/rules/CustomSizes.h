#pragma once

#include <QtCore/QSizeF>

/// The printer's limits for custom sizes, in points: 0 where it takes none.
struct CustomSizeLimits
{
    QSizeF smallest{0, 0};
    QSizeF largest{0, 0};
};

/// Whether a paper of the size (points) lies within the limits, the limits themselves included.
bool isWithinCustomSizes(const CustomSizeLimits &limits, const QSizeF &size);

/// Whether a page of the size (whole points) that no name places lies on the paper in landscape.
bool isLandscapeSize(const QSizeF &size);
