#include "dialog/job/PrintedSides.h"

#include "dialog/job/JobLayout.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPagesOfBookletSheet = 4; // on its two sides

bool isBooklet(const JobLayout &layout)
{
    return layout.booklet == "on"_L1;
}

/// So many of the parts have room for all.
int partsFor(int all, int ofEach)
{
    return (all + ofEach - 1) / ofEach;
}

} // namespace

bool hasSeveralPagesOnASide(const JobLayout &layout)
{
    return isBooklet(layout) || layout.pagesPerSheet.toInt() > 1;
}

int printedSides(const JobLayout &layout, int pages)
{
    if (isBooklet(layout))
        return 2 * partsFor(pages, kPagesOfBookletSheet);
    return partsFor(pages, std::max(1, layout.pagesPerSheet.toInt()));
}
