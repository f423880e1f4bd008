#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <ostream>

// How GoogleTest prints values that Qt knows: a null string differs from an empty one.

inline void PrintTo(const QString &text, std::ostream *out)
{
    if (text.isNull())
        *out << "(null)";
    else
        *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList &texts, std::ostream *out)
{
    *out << '[' << texts.join(QStringLiteral(", ")).toStdString() << ']';
}

inline void PrintTo(const QVariant &value, std::ostream *out)
{
    *out << (value.isValid() ? value.typeName() : "(invalid)") << ' '
         << value.toString().toStdString();
}
