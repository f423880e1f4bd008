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
    QLatin1String field;     ///< its numeric field in the view resource
};

/// In the order in which every list and every loop takes them.
inline constexpr std::array<Effect, 5> kEffects = {{
    {0, QLatin1String("VKBrightness"),
     QLatin1String("com.velkaro.print.PrintSettings.T2T_Brightness"),
     QLatin1String("brightnessField")},
    {1, QLatin1String("VKContrast"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Contrast"),
     QLatin1String("contrastField")},
    {2, QLatin1String("VKRed"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Red"),
     QLatin1String("redField")},
    {3, QLatin1String("VKGreen"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Green"),
     QLatin1String("greenField")},
    {4, QLatin1String("VKBlue"), QLatin1String("com.velkaro.print.PrintSettings.T2T_Blue"),
     QLatin1String("blueField")},
}};

/// The five keywords.
QStringList effectKeywords();

/// The ticket key of the keyword; null for any other keyword.
QString effectTicketKey(const QString &keyword);
