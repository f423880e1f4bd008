#pragma once

#include <QtCore/QString>

#include <ostream>

/// How a failed comparison shows Qt's strings. A null string differs from an empty one.
inline void PrintTo(const QString &text, std::ostream *out)
{
    if (text.isNull())
        *out << "null";
    else
        *out << '"' << qPrintable(text) << '"';
}
