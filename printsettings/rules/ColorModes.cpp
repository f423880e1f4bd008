#include "printsettings/rules/ColorModes.h"

using namespace Qt::StringLiterals;

QStringList colorModes()
{
    return {u"Color"_s, u"Mono"_s};
}

bool isMonoMode(const QString &choice)
{
    return choice == colorModes().constLast();
}
