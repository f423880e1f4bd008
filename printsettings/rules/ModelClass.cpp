#include "printsettings/rules/ModelClass.h"

#include <QtCore/QStringList>

namespace {

constexpr int kFirstNewerModelNumber = 11;

// '\0' behind the end, which is within no bounds.
char16_t characterAt(const QString &text, qsizetype index)
{
    return index < text.size() ? text[index].unicode() : u'\0';
}

bool isWithin(char16_t character, char16_t lowest, char16_t highest)
{
    return character >= lowest && character <= highest;
}

QString withoutOuterLetters(const QString &text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin].isLetter())
        ++begin;
    while (end > begin && text[end - 1].isLetter())
        --end;
    return text.mid(begin, end - begin);
}

// "J710DW": four digits, or three from 610 upwards.
bool isNewerJ(const QString &model)
{
    const QString number = withoutOuterLetters(model);
    if (number.size() > 3)
        return true;
    if (characterAt(number, 0) == u'6')
        return isWithin(characterAt(number, 1), u'1', u'9');
    return isWithin(characterAt(number, 0), u'7', u'9');
}

// "380C": from 380C upwards, and everything whose fourth character is no C.
bool isNewerOther(const QString &model)
{
    if (model.size() < 4)
        return false;
    if (model[3] != u'C')
        return true;
    if (model[0] == u'3')
        return isWithin(characterAt(model, 1), u'8', u'9');
    return isWithin(characterAt(model, 0), u'4', u'9');
}

} // namespace

bool isNewerModelClass(int modelNumber, const QString &modelName)
{
    if (modelNumber >= kFirstNewerModelNumber)
        return true;
    const QStringList parts = modelName.split(u'-');
    if (parts.size() != 2)
        return false;
    return parts[1].startsWith(u'J') ? isNewerJ(parts[1]) : isNewerOther(parts[1]);
}
