#include "dialog/job/PrintScaling.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Word
{
    QLatin1String name;
    QLatin1String value;
    PrintScaling scaling;
};

constexpr auto kScaling = "print-scaling"_L1;
constexpr auto kFitToPage = "fit-to-page"_L1;
constexpr auto kFitPlot = "fitplot"_L1;

// The first row of a scaling is how it is sent.
constexpr std::array kWords{
    Word{kScaling, "auto"_L1, PrintScaling::Automatic},
    Word{kScaling, "none"_L1, PrintScaling::ActualSize},
    Word{kScaling, "fit"_L1, PrintScaling::Fit},
    Word{kScaling, "fill"_L1, PrintScaling::Fill},
    Word{kFitToPage, "true"_L1, PrintScaling::Fit},
    Word{kFitToPage, "yes"_L1, PrintScaling::Fit},
    Word{kFitToPage, "on"_L1, PrintScaling::Fit},
    Word{kFitToPage, "false"_L1, PrintScaling::Automatic},
    Word{kFitToPage, "no"_L1, PrintScaling::Automatic},
    Word{kFitToPage, "off"_L1, PrintScaling::Automatic},
    Word{kFitPlot, "true"_L1, PrintScaling::Fit},
    Word{kFitPlot, "false"_L1, PrintScaling::Automatic},
};

} // namespace

QString scalingKeyword(PrintScaling scaling)
{
    return std::ranges::find(kWords, scaling, &Word::scaling)->value;
}

bool isScalingOption(const QString &name)
{
    return std::ranges::find(kWords, name, &Word::name) != kWords.end();
}

std::optional<PrintScaling> scalingOf(const JobOption &option)
{
    const auto word = std::ranges::find_if(kWords, [&](const Word &row) {
        return option.name == row.name && option.value == row.value;
    });
    return word == kWords.end() ? std::nullopt : std::optional(word->scaling);
}
