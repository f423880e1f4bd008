#include "panel/TicketValue.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

bool isString(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

long long wholePart(double number)
{
    constexpr auto largest = std::numeric_limits<long long>::max();
    if (std::isnan(number))
        return 0;
    if (number >= static_cast<double>(largest))
        return largest;
    if (number <= static_cast<double>(std::numeric_limits<long long>::min()))
        return std::numeric_limits<long long>::min();
    return static_cast<long long>(number);
}

} // namespace

bool ticketBoolean(const QVariant &value)
{
    if (!isString(value))
        return value.toDouble() != 0.0;
    const QString text = value.toString().trimmed();
    return text.startsWith(u'Y', Qt::CaseInsensitive) ||
           text.startsWith(u'T', Qt::CaseInsensitive) || ticketInteger(value) != 0;
}

long long ticketInteger(const QVariant &value)
{
    if (!isString(value))
        return wholePart(value.toDouble());
    return std::strtoll(value.toString().toLatin1().constData(), nullptr, 10);
}
