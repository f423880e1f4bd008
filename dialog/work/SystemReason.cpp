#include "dialog/work/SystemReason.h"

#include <clocale>
#include <cstring>

namespace {

// The C library asks for the user's languages in every locale but "C".
locale_t reasonLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C.UTF-8", nullptr);
    return locale;
}

} // namespace

QString systemReason(int error)
{
    return QString::fromUtf8(reasonLocale() ? strerror_l(error, reasonLocale())
                                            : std::strerror(error));
}
