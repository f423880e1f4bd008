// One fuzzing program a harness: libFuzzer has main(), the build names the harness.
#include "tests/fuzz/Harnesses.h"

#include <QtWidgets/QApplication>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    prepareEnvironment();
    static QApplication application(*argc, *argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    VELKARO_HARNESS(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}
