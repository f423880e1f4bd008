#pragma once

#include "tests/golden/ProgramUnderTest.h"

/// A random script. It is made against the running program: what comes next depends on what the
/// session shows. The same program, seed and index give the same script on every machine.
QByteArray randomScript(const ProgramUnderTest &program, quint32 seed, quint32 index);
