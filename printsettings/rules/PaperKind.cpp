#include "printsettings/rules/PaperKind.h"

using namespace Qt::StringLiterals;

bool isDiscPaper(const QString &paperName)
{
    return paperName.startsWith("120x120mm"_L1) || paperName.contains("12cm"_L1);
}

bool isBorderlessPaper(const QString &paperName)
{
    return paperName.contains("Fullbleed"_L1) || paperName.contains("_B"_L1);
}

bool isEnvelopePaper(const QString &paperName)
{
    return paperName.startsWith("Env"_L1);
}

bool isCustomPaper(const QString &paperName)
{
    return paperName.startsWith("Custom"_L1);
}
