#pragma once

#include "tests/golden/ProgramUnderTest.h"

/// A random run of the program without its dialog, as a case's file says it.
QByteArray randomRun(const ProgramUnderTest &program, quint32 seed, quint32 index);
