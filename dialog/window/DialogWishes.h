#pragma once

#include "dialog/printing/PrintWishes.h"

/// What a dialog is to show, beside what is to be printed.
struct DialogWishes : PrintWishes
{
    QString panel; ///< the part in front: the name of a panel, "setup", "features" or "summary"
    bool isPicture =
        false; ///< the dialog is painted once: it waits for the printer and nothing else
};
