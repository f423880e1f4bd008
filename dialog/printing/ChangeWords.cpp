#include "dialog/printing/ChangeWords.h"

#include "dialog/job/Papers.h"
#include "dialog/job/SettingTitle.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString wordsOf(ppd_file_t *ppd, const SettingChange &change)
{
    return changeWords(settingTitle(ppd, change.keyword),
                       change.from.isNull() ? QString()
                                            : choiceWords(ppd, change.keyword, change.from),
                       choiceWords(ppd, change.keyword, change.to));
}

} // namespace

QString choiceWords(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    if (const std::optional<PMPaper> custom = parseCustomPaper(choice))
        return paperText(ppd, *custom);
    ppd_option_t *option = findOption(ppd, keyword);
    const ppd_choice_t *found = findChoice(option, choice);
    if (!found)
        return displayText(choice);
    int uses = 0;
    for (int index = 0; index < option->num_choices; ++index)
        uses += qstrcmp(option->choices[index].text, found->text) == 0 ? 1 : 0;
    const QString text = displayText(ppdText(found->text));
    return uses > 1 ? text + u" ["_s + displayText(choice) + u']' : text;
}

QString changeWords(const QString &title, const QString &from, const QString &to)
{
    if (to.isNull())
        return QCoreApplication::translate("ChangeWords", "%1 is gone (was %2)").arg(title, from);
    if (from.isNull())
        return QCoreApplication::translate("ChangeWords", "%1 is now %2").arg(title, to);
    return QCoreApplication::translate("ChangeWords", "%1 is now %2 (was %3)").arg(title, to, from);
}

QString sentenceOfChanges(const QStringList &changes)
{
    QString words;
    for (const QString &next : changes)
        words = words.isNull()
                    ? next
                    : QCoreApplication::translate("ChangeWords", "%1; %2").arg(words, next);
    return words.isNull() ? QString()
                          : QCoreApplication::translate("ChangeWords", "%1.").arg(words);
}

QString changeSentence(ppd_file_t *ppd, const QList<SettingChange> &changes)
{
    QStringList words;
    for (const SettingChange &change : changes)
        words += wordsOf(ppd, change);
    return sentenceOfChanges(words);
}

QString replacementSentence(ppd_file_t *ppd, const SettingChange &change)
{
    return QCoreApplication::translate("ChangeWords",
                                       "%1: \"%2\" would be printed in place of \"%3\".")
        .arg(settingTitle(ppd, change.keyword), choiceWords(ppd, change.keyword, change.to),
             choiceWords(ppd, change.keyword, change.from));
}
