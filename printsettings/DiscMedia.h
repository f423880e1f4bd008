#pragma once

#include <QtCore/QStringList>

/// The media that the disc rules enable and disable.
///
/// There are two sets, one for the rules on pending values and one for the rules on controls, and
/// they differ on purpose: the first has "PlainDuplex" and not "Transparencies", the second the
/// reverse (transparencies follow a rule of their own on the controls), only the second names the
/// glossy disc, and neither names "VelkaroGlossy". Making them one would enable or disable media
/// that must be left as they are.

/// For the pending values.
QStringList constrainedDiscMedia();
QStringList constrainedOtherMedia();

/// For the controls.
QStringList shownDiscMedia();
QStringList shownOtherMedia();
