#pragma once

#include "dialog/job/PrintScaling.h"

#include <QtCore/QString>

/// On what a document is scaled, and what it is: the server does not do the same
/// with all.
struct ScalingCase
{
    bool hasMargins = true; ///< the paper: there are places that the printer cannot print on
    bool isPicture = false;
};

/// What a scaling is called, such as "Fit to the Printable Area".
QString scalingTitle(PrintScaling scaling, const ScalingCase &on);

/// What comes of it, in a sentence or two.
QString scalingSentence(PrintScaling scaling, const ScalingCase &on);
