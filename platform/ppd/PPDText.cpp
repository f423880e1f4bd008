#include "platform/ppd/PPDText.h"

#include "platform/toolkit/PlainText.h"

#include <algorithm>

QString ppdText(const char *text)
{
    if (!text)
        return {};
    QString decoded = QString::fromUtf8(text);
    while (decoded.endsWith(QChar::ReplacementCharacter))
        decoded.chop(1);
    return displayText(decoded);
}

QString ppdName(const char *name)
{
    return name ? QString::fromLatin1(name) : QString();
}

QByteArray ppdBytes(const QString &name)
{
    const bool ascii = std::all_of(name.begin(), name.end(),
                                   [](QChar character) { return character.unicode() < 0x80; });
    return ascii ? name.toLatin1() : QByteArray("?");
}

ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword)
{
    if (!ppd || keyword.isEmpty())
        return nullptr;
    const QByteArray name = ppdBytes(keyword);
    ppd_option_t *option = ppdFindOption(ppd, name.constData());
    return option && name == option->keyword ? option : nullptr;
}

ppd_choice_t *findChoice(ppd_option_t *option, const QString &choice)
{
    if (!option || choice.isEmpty())
        return nullptr;
    const QByteArray name = ppdBytes(choice);
    ppd_choice_t *found = ppdFindChoice(option, name.constData());
    return found && name == found->choice ? found : nullptr;
}

QString markedChoice(ppd_file_t *ppd, const QString &keyword)
{
    if (!findOption(ppd, keyword))
        return {};
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, ppdBytes(keyword).constData());
    return choice ? ppdName(choice->choice) : QString();
}
