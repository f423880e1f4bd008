#include "dialog/job/ScalingSentences.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

enum class On { Any, Borderless, Picture }; // Picture: on paper with margins

struct Text
{
    PrintScaling scaling;
    On on;
    const char *text;
};

// The first row that is for the case holds.
constexpr std::array kTitles{
    Text{PrintScaling::Automatic, On::Any, QT_TRANSLATE_NOOP("ScalingSentences", "Automatic")},
    Text{PrintScaling::ActualSize, On::Any, QT_TRANSLATE_NOOP("ScalingSentences", "Actual Size")},
    Text{PrintScaling::Fit, On::Any,
         QT_TRANSLATE_NOOP("ScalingSentences", "Fit to the Printable Area")},
    Text{PrintScaling::Fill, On::Borderless,
         QT_TRANSLATE_NOOP("ScalingSentences", "Fill the Sheet")},
    Text{PrintScaling::Fill, On::Any,
         QT_TRANSLATE_NOOP("ScalingSentences", "Fill the Printable Area")},
};

// What the filters of CUPS do, measured. They lay a picture within the margins of a page; to fit or
// to fill, they lay that page within the margins again.
constexpr std::array kSentences{
    Text{PrintScaling::Automatic, On::Borderless,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Pages that are larger than the paper are made just small enough to "
                           "cover it, and what does not fit is cut off. All others keep their "
                           "size.")},
    Text{PrintScaling::Automatic, On::Picture,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Pictures that are larger than the printable area are made smaller. "
                           "All others keep their size.")},
    Text{PrintScaling::Automatic, On::Any,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Pages that are larger than the paper are made smaller. All others "
                           "keep their size.")},
    Text{PrintScaling::ActualSize, On::Any,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Every page keeps its size, in the middle of the paper. What does not "
                           "fit is cut off.")},
    Text{PrintScaling::Fit, On::Picture,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Every picture is made as large as fits as a whole. The print server "
                           "leaves twice the paper's margins around it; borderless paper has "
                           "none.")},
    Text{PrintScaling::Fit, On::Any,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Every page is made as large as fits on the paper as a whole.")},
    Text{PrintScaling::Fill, On::Borderless,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Every page is made so large that no place stays white. What does not "
                           "fit is cut off.")},
    Text{PrintScaling::Fill, On::Picture,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Every picture is cut to the shape of the printable area. The print "
                           "server leaves twice the paper's margins around it; borderless paper "
                           "has none.")},
    Text{PrintScaling::Fill, On::Any,
         QT_TRANSLATE_NOOP("ScalingSentences",
                           "Every page is made so large that only the paper's margins stay "
                           "white. What does not fit is cut off.")},
};

bool isFor(On row, const ScalingCase &on)
{
    if (row == On::Any)
        return true;
    return on.hasMargins ? row == On::Picture && on.isPicture : row == On::Borderless;
}

template <typename Table>
QString textFor(const Table &table, PrintScaling scaling, const ScalingCase &on)
{
    const auto row = std::ranges::find_if(
        table, [&](const Text &text) { return text.scaling == scaling && isFor(text.on, on); });
    return QCoreApplication::translate("ScalingSentences", row->text);
}

} // namespace

QString scalingTitle(PrintScaling scaling, const ScalingCase &on)
{
    return textFor(kTitles, scaling, on);
}

QString scalingSentence(PrintScaling scaling, const ScalingCase &on)
{
    return textFor(kSentences, scaling, on);
}
