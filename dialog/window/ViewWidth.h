#pragma once

#include <map>
#include <vector>

class QWidget;

// Panels give the parts of their views places from left to right that are right for the texts of
// one language in one font. The dialog makes room where a text needs more.

/// What a part takes up from left to right, and how much of it is needed; in pixels.
struct WidthNeed
{
    int left;
    int right; ///< beyond `left`
    int width; ///< that is needed
};

/// Where the edges of the parts come to lie, by where they are: every part has what it needs, and
/// nothing is nearer to anything else than it was. What began, or ended, in one line still does.
std::map<int, int> fittedEdges(const std::vector<WidthNeed> &needs);

/// Makes a view so wide that every part of it has the width that it asks for at least. A view whose
/// layout is the toolkit's is wide enough by itself.
void fitWidth(QWidget &view);
