#pragma once

#include <QtCore/QString>

/// The plug-in's bundle as the build makes it.
inline QString builtBundle()
{
    return QStringLiteral(VELKARO_BUILT_BUNDLE);
}

/// The folder of the sample printers' PPDs.
inline QString samplePPDFolder()
{
    return QStringLiteral(VELKARO_BUILT_PPDS);
}

/// A sample printer's PPD by the name of the file without its ending, such as "velkaro-px-t900".
inline QString samplePPD(const QString &name)
{
    return samplePPDFolder() + QStringLiteral("/%1.ppd").arg(name);
}
