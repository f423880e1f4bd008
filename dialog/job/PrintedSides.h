#pragma once

struct JobLayout;

/// Whether several pages come on a side of the paper. Then the server's filters count sides where a
/// job says page ranges, or odd and even pages.
bool hasSeveralPagesOnASide(const JobLayout &layout);

/// The sides that so many pages of a document are printed on, before some of them are chosen.
int printedSides(const JobLayout &layout, int pages);
