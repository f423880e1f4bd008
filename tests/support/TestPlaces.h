#pragma once

#include <QtCore/QString>

/// The plug-in's bundle as it was built.
inline QString builtBundle()
{
    return QStringLiteral(VELKARO_TEST_BUNDLE);
}

/// A sample printer's PPD by the name of the file without its ending, such as "velkaro-px-t900".
inline QString samplePPD(const QString &name)
{
    return QStringLiteral(VELKARO_TEST_PPDS "/") + name + QStringLiteral(".ppd");
}
