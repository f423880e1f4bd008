#pragma once

#include "dialog/work/Fault.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

/// The sentence about a PPD file in the user's language. All values at once: a path may itself have
/// a "%2" in it.
template <typename... Rest>
QString ppdSentence(const char *text, const QString &path, const Rest &...rest)
{
    return QCoreApplication::translate("PPDFile", text).arg(path, rest...);
}

/// The same as the fault of a PPD that cannot be used.
template <typename... Rest>
Fault ppdFault(const char *text, const QString &path, const Rest &...rest)
{
    return {FaultKind::PPD, ppdSentence(text, path, rest...)};
}

inline Fault unreadablePPD(const QString &path)
{
    return ppdFault(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be read."), path);
}

inline Fault incompletePPD(const QString &path)
{
    return ppdFault(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 is incomplete: it ends too "
                                                 "early. Get it again."),
                    path);
}
