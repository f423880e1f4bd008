#include "tests/fuzz/Harnesses.h"

#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <cstdlib>

void prepareEnvironment()
{
    static const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("CUPS_SERVERROOT", "/nonexistent");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

void require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "Broken: %s\n", promise);
    std::abort();
}
