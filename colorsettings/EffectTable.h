#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <array>

/// One of the five enhancement values.
struct Effect
{
    int tag;                 ///< of its slider and its field, and its code in the record of changes
    QLatin1String keyword;   ///< its PPD keyword, and its key in `outputBin` and `effectContent`
    QLatin1String ticketKey; ///< where the ticket holds it, as a decimal text
};

/// In the order in which every list and every loop takes them.
inline constexpr std::array<Effect, 5> kEffects = {{
    {0, QLatin1String("VKBrightness"),
     QLatin1String("com.velkaro.print.PrintSettings.T2T_Brightness")},
    {1, QLatin1String("VKContrast"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Contrast")},
    {2, QLatin1String("VKRed"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Red")},
    {3, QLatin1String("VKGreen"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Green")},
    {4, QLatin1String("VKBlue"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Blue")},
}};

/// The five keywords.
QStringList effectKeywords();

/// The ticket key of the keyword; null for any other keyword.
QString effectTicketKey(const QString &keyword);
