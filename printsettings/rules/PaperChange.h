#pragma once

#include <QtCore/QString>

#include <optional>

/// What a change of paper does to the pending values, in the order of the functions: each value
/// that the dialog has taken counts for those after it.

/// The medium that must be set; null: none. Leaving a disc falls back to plain paper also when the
/// next paper is a disc again: the rules that follow a paper change bring "PrintableDisc" back, and
/// the dialog is told of both.
QString mediumForDisc(bool previousDiscPaper, bool discPaper);

/// The choice of `VKColorPaperThick` for an envelope and for any other paper. It is set twice: by
/// the paper before, so that a custom paper inherits it, and by the new one unless that is custom.
QString paperThickness(bool envelope);

/// Whether the paper counts as an envelope: by its name, and a custom one by its thickness.
bool countsAsEnvelope(const QString &paperName, const QString &thickness);

/// Whether bi-directional printing is left alone: on envelopes and postcards.
bool leavesDirectionAlone(const QString &paperName, bool envelope);

/// What a custom paper is by the pending thickness: an envelope or not. None for another paper,
/// whose name has said so already.
std::optional<bool> customEnvelope(const QString &paperName, const QString &thickness);

/// Once the values hold: whether the medium's defaults are applied to the controls, as after a
/// pick.
bool appliesDefaultsAfterPaper(const QString &mediaType, bool borderlessWarning);
