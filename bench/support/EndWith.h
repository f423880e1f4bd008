#pragma once

#include <QtCore/QString>

#include <cstdio>
#include <cstdlib>

/// Ends the program with the sentence: it would measure, or show, something else than it says.
[[noreturn]] inline void endWith(const QString &reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    std::exit(1);
}
