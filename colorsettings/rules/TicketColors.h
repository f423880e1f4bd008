#pragma once

#include <QtCore/QString>

#include <optional>

/// Colours as choices of the PPD and as the panel's states. A null choice is one that the ticket
/// does not have; none as an answer leaves the state as it is.

/// Whether the choice of `VKMonoColor` is a mono mode: all but "Color" are.
std::optional<bool> monoOfChoice(const QString &choice);

/// Whether the choice of `VKHalfTonePattern` is diffusion; and the choice for it.
std::optional<bool> diffusionOfChoice(const QString &choice);
QString halftoneChoice(bool diffusion);

/// Whether the choice of `VKColorMatching` in the ticket is natural matching. "Vivid" says nothing:
/// a halftone's name, "Diffusion", is what says no.
std::optional<bool> naturalOfChoice(const QString &choice);
/// The choice of `VKColorMatching` for what the Print Settings panel calls for.
QString matchingChoice(bool natural);

/// Whether a job that is scaled to the paper is matched naturally, whatever the dialog answers.
bool forcesNaturalMatching(const QString &mappedPaperName);

/// The picture that the preview starts from: that of the matching, or a plain one where the
/// application matches the colours. Null: the matching is not known yet, and the picture stays.
QString referencePicture(bool vendorMatching, const QString &colorMatching);
