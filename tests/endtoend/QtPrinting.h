#pragma once

#include "dialog/cups/JobOption.h"

#include <QtCore/QString>

#include <ostream>

/// What a failed comparison shows of Qt's strings; gtest finds them beside the types.
inline void PrintTo(const QString &text, std::ostream *out)
{
    if (text.isNull())
        *out << "(null)";
    else
        *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const JobOption &option, std::ostream *out)
{
    *out << option.name.toStdString() << '=' << option.value.toStdString();
}
