#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

/// The sentence about a PPD file in the user's language. All values at once: a path may itself have
/// a "%2" in it.
template <typename... Rest>
QString ppdSentence(const char *text, const QString &path, const Rest &...rest)
{
    return QCoreApplication::translate("PPDFile", text).arg(path, rest...);
}

inline QString unreadablePPD(const QString &path)
{
    return ppdSentence(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be read."), path);
}

inline QString incompletePPD(const QString &path)
{
    return ppdSentence(QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 is incomplete: it ends too "
                                                    "early. Get it again."),
                       path);
}
