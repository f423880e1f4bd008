#include "dialog/job/ColorMode.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// Those that begin with "process-" mix their grey of colors.
constexpr std::array kBlackAlone{"monochrome"_L1, "bi-level"_L1};

} // namespace

bool mayPrintInColor(const QList<JobOption> &options)
{
    const QString mode = optionValue(options, u"print-color-mode"_s);
    return std::ranges::find(kBlackAlone, mode) == kBlackAlone.end();
}
