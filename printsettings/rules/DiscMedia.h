#pragma once

#include <QtCore/QStringList>

#include <vector>

/// Which media the paper makes available and unavailable in the pop-up.
///
/// There are two tables, one for the rules on pending values and one for the rules on controls, and
/// they differ on purpose: the first has "PlainDuplex" and not "Transparencies", the second the
/// reverse (transparencies have a row of their own on the controls), only the second names the
/// glossy disc, and neither names "VelkaroGlossy". Making them one would enable or disable media
/// that must be left as they are.

/// One step: the media are enabled, or disabled. With `applyDefault` the pop-up's default is
/// selected afterwards whatever is selected; without, only in the place of a disabled one.
struct MediaChange
{
    QStringList media;
    bool enable = false;
    bool applyDefault = false;

    friend bool operator==(const MediaChange &, const MediaChange &) = default;
};

/// The steps, in order, for the rules on pending values.
const std::vector<MediaChange> &constrainedMedia(bool discPaper);

/// The steps, in order, for the rules on controls. They enable no medium of ordinary paper: the
/// rules on pending values do that.
const std::vector<MediaChange> &shownMedia(bool discPaper, bool borderlessPaper);
