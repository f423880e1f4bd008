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

bool isSameName(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword)
{
    if (!ppd || keyword.isEmpty())
        return nullptr;
    return ppdFindOption(ppd, ppdBytes(keyword).constData());
}

ppd_choice_t *findChoice(ppd_option_t *option, const QString &choice)
{
    if (!option || choice.isEmpty())
        return nullptr;
    const QByteArray name = ppdBytes(choice);
    ppd_choice_t *found = ppdFindChoice(option, name.constData());
    // "Custom.72x72" would find the choice "Custom", and lose its value.
    return found && qstricmp(name.constData(), found->choice) == 0 ? found : nullptr;
}

QString markedChoice(ppd_file_t *ppd, const QString &keyword)
{
    if (!findOption(ppd, keyword))
        return {};
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, ppdBytes(keyword).constData());
    return choice ? ppdName(choice->choice) : QString();
}
