#include "dialog/job/Conflicts.h"

#include "dialog/job/FeatureTexts.h"
#include "dialog/job/SettingTitle.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <cups/cups.h>

using namespace Qt::StringLiterals;

namespace {

QString quotedList(const QStringList &texts)
{
    QStringList quoted;
    for (const QString &text : texts)
        quoted += QCoreApplication::translate("Conflicts", "\"%1\"").arg(text);
    return quoted.join(QCoreApplication::translate("Conflicts", ", "));
}

/// The choices of a value that constraints of the PPD may forbid: of several each, and the one that
/// stands for all values of the user's own. libcups knows "Custom.120" by itself.
QStringList constrainedChoices(ppd_file_t *ppd, const QString &keyword, const QString &value)
{
    ppd_option_t *option = findOption(ppd, keyword);
    if (!option || findChoice(option, value))
        return {value};
    if (option->ui == PPD_UI_PICKMANY)
        return value.split(u',');
    return {value.startsWith(u'{') ? u"Custom"_s : value};
}

QStringList clashesWithOne(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    cups_option_t *options = nullptr;
    const int count = cupsGetConflicts(ppd, ppdBytes(keyword).constData(),
                                       ppdBytes(choice).constData(), &options);
    QStringList clashes;
    for (int index = 0; index < count; ++index) {
        const QString other = ppdName(options[index].name);
        // PPDs have every paper twice, as PageSize and PageRegion: one of them is enough to name.
        if (other != QLatin1String("PageRegion"))
            clashes += choiceText(ppd, other, ppdName(options[index].value));
    }
    cupsFreeOptions(count, options);
    return clashes;
}

} // namespace

QString choiceText(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    return QCoreApplication::translate("Conflicts", "%1: %2")
        .arg(settingTitle(ppd, keyword), valueText(ppd, keyword, choice));
}

QStringList clashesWith(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    QStringList clashes;
    for (const QString &one : constrainedChoices(ppd, keyword, choice))
        clashes += clashesWithOne(ppd, keyword, one);
    clashes.removeDuplicates();
    return clashes;
}

QSet<QString> constrainedKeywords(ppd_file_t *ppd)
{
    QSet<QString> keywords;
    for (int index = 0; index < ppd->num_consts; ++index) {
        keywords.insert(ppdName(ppd->consts[index].option1).toLower());
        keywords.insert(ppdName(ppd->consts[index].option2).toLower());
    }
    for (const ppd_attr_t *all = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); all;
         all = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr))
        for (const QString &word : QString::fromUtf8(all->value).split(u' ', Qt::SkipEmptyParts))
            if (word.startsWith(u'*'))
                keywords.insert(word.mid(1).toLower());
    return keywords;
}

int constraintsIn(ppd_file_t *ppd)
{
    int count = ppd->num_consts;
    for (const ppd_attr_t *one = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); one;
         one = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr))
        ++count;
    return count;
}

QString refusalSentence(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    const QStringList clashes = clashesWith(ppd, keyword, choice);
    if (clashes.isEmpty())
        return {};
    return QCoreApplication::translate("Conflicts", "\"%1\" cannot be chosen: the printer does not "
                                                    "allow it together with %2.")
        .arg(choiceText(ppd, keyword, choice), quotedList(clashes));
}
