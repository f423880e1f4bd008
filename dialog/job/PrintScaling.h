#pragma once

#include "dialog/job/JobOption.h"

#include <QtCore/QString>

#include <optional>

/// How the pages of a document come to the size of the sheet.
enum class PrintScaling {
    Automatic, ///< larger pages are shrunk to fit, or to fill borderless paper; others stay as they
               ///< are
    ActualSize, ///< every page keeps its size; what does not fit is cut off
    Fit,        ///< every page is as large as lies whole in the printable area
    Fill,       ///< every page is as large as leaves no printable place white; the rest is cut off
};

/// The value of the attribute `print-scaling`.
QString scalingKeyword(PrintScaling scaling);

/// Whether an option of that name says how a document is scaled: `print-scaling`, and the words
/// that lp and lpoptions have for it.
bool isScalingOption(const QString &name);

/// What such an option says; none when it is no value for that name.
std::optional<PrintScaling> scalingOf(const JobOption &option);
