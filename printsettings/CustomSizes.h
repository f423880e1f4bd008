#pragma once

#include <QtCore/QSizeF>

#include <cups/ppd.h>

/// Whether a paper of the size (points) lies within the PPD's limits for custom sizes, the limits
/// themselves included. A PPD without custom sizes has the limits 0.
bool isWithinCustomSizes(const ppd_file_t &ppd, const QSizeF &size);

/// Whether a page of the size (whole points) that no name places lies on the paper in landscape.
bool isLandscapeSize(const QSizeF &size);
