#include "dialog/advice/RemedyWords.h"

#include "dialog/job/SettingTitle.h"
#include "dialog/printing/ChangeWords.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestList = 4;
constexpr qsizetype kNamedOfMore = 2; // of a longer list

std::span<ppd_choice_t> choicesIn(const ppd_option_t &option)
{
    return {option.choices, static_cast<std::size_t>(std::max(0, option.num_choices))};
}

/// Every PPD has the papers twice.
bool isOfPapers(const ppd_option_t &option)
{
    return qstricmp(option.keyword, "PageRegion") == 0;
}

/// Whether no other setting has a choice of this text.
bool isUnmistakable(ppd_file_t *ppd, const ppd_option_t &own, const char *text)
{
    for (const ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        if (option != &own && !isOfPapers(*option))
            for (const ppd_choice_t &choice : choicesIn(*option))
                if (qstricmp(choice.text, text) == 0)
                    return false;
    return true;
}

QString joined(const QStringList &names)
{
    QString words = names.value(0);
    for (qsizetype index = 1; index < names.size(); ++index)
        words = (index + 1 < names.size() ? QCoreApplication::translate("RemedyWords", "%1, %2")
                                          : QCoreApplication::translate("RemedyWords", "%1 and %2"))
                    .arg(words, names[index]);
    return words;
}

/// What is done with a setting to make it so.
enum Step { Use, TurnOn, TurnOff };

// Indexed by Step.
using StepTexts = std::array<const char *, 3>;
constexpr StepTexts kLastSteps{QT_TRANSLATE_NOOP("RemedyWords", "use %1"),
                               QT_TRANSLATE_NOOP("RemedyWords", "turn on %1"),
                               QT_TRANSLATE_NOOP("RemedyWords", "turn off %1")};
// %2 is what is done next.
constexpr StepTexts kStepsBefore{QT_TRANSLATE_NOOP("RemedyWords", "use %1 and %2"),
                                 QT_TRANSLATE_NOOP("RemedyWords", "turn on %1 and %2"),
                                 QT_TRANSLATE_NOOP("RemedyWords", "turn off %1 and %2")};

/// Names of choices are words of the PPD's language, whatever their texts are.
Step stepTo(const QString &choice)
{
    constexpr auto isOneOf = [](const QString &name, const auto &names) {
        return std::ranges::any_of(names, [&](QLatin1String one) { return isSameName(name, one); });
    };
    if (isOneOf(choice, std::array{"On"_L1, "True"_L1, "Yes"_L1}))
        return TurnOn;
    return isOneOf(choice, std::array{"Off"_L1, "None"_L1, "False"_L1, "No"_L1}) ? TurnOff : Use;
}

/// With what is done next, where anything is.
QString stepWords(ppd_file_t *ppd, const PPDMark &mark, const QString &next = QString())
{
    const Step step = stepTo(mark.choice);
    const QString name = step == Use ? nameOfChoice(ppd, mark.keyword, mark.choice)
                                     : settingTitle(ppd, mark.keyword);
    const StepTexts &texts = next.isNull() ? kLastSteps : kStepsBefore;
    const QString pattern = QCoreApplication::translate("RemedyWords", texts[step]);
    return next.isNull() ? pattern.arg(name) : pattern.arg(name, next);
}

QStringList namesOf(ppd_file_t *ppd, const Remedy &remedy, QString SettingChange::*choice)
{
    QStringList names;
    for (const SettingChange &change : remedy.changes)
        if (!(change.*choice).isNull())
            names += nameOfChoice(ppd, change.keyword, change.*choice);
    return names;
}

QString possibleSentence(ppd_file_t *ppd, const Advice &advice, const QString &wanted)
{
    const Remedy &best = advice.remedies.constFirst();
    QStringList givers;
    for (const Remedy &remedy : remediesOfOneSetting(ppd, advice))
        givers += remedyWords(ppd, remedy);
    const QString obstacles = joined(namesOf(ppd, best, &SettingChange::from));
    if (obstacles.isEmpty())
        return QCoreApplication::translate("RemedyWords", "%1 is there for %2.")
            .arg(wanted, givers.isEmpty() ? remedyWords(ppd, best) : shortList(givers));
    if (givers.isEmpty())
        return QCoreApplication::translate("RemedyWords",
                                           "%1 is not there for %2. It is there with %3.")
            .arg(wanted, obstacles, remedyWords(ppd, best));
    return QCoreApplication::translate("RemedyWords", "%1 is not there for %2. It is there for %3.")
        .arg(wanted, obstacles, shortList(givers));
}

} // namespace

QString nameOfChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    QString words = choiceWords(ppd, keyword, choice);
    ppd_option_t *option = findOption(ppd, keyword);
    const ppd_choice_t *found = findChoice(option, choice);
    if (!option || (found && option->num_choices > 2 && isUnmistakable(ppd, *option, found->text)))
        return words;
    return QCoreApplication::translate("RemedyWords", "%1: %2")
        .arg(settingTitle(ppd, keyword), words);
}

QString adviceSentence(ppd_file_t *ppd, const Advice &advice)
{
    const QString wanted = nameOfChoice(ppd, advice.keyword, advice.choice);
    switch (advice.outcome) {
    case Advice::Outcome::Available:
        return QCoreApplication::translate("RemedyWords", "%1 can be chosen.").arg(wanted);
    case Advice::Outcome::Possible:
        return possibleSentence(ppd, advice, wanted);
    case Advice::Outcome::Impossible:
        return QCoreApplication::translate("RemedyWords", "No setting of this printer gives %1.")
            .arg(wanted);
    case Advice::Outcome::Unknown:
        break;
    }
    return QCoreApplication::translate("RemedyWords",
                                       "There are too many conditions to explain why %1 is not "
                                       "there.")
        .arg(wanted);
}

QList<Remedy> remediesOfOneSetting(ppd_file_t *ppd, const Advice &advice)
{
    const Remedy best = advice.remedies.value(0);
    if (best.changes.size() != 1)
        return {};
    const SettingChange &first = best.changes.constFirst();
    QHash<QString, Remedy> others;
    for (const Remedy &remedy : advice.remedies)
        if (const SettingChange &change = remedy.changes.constFirst();
            change.keyword == first.keyword && change.to != first.to)
            others.insert(change.to, remedy);
    QList<Remedy> remedies{best};
    const ppd_option_t *option = findOption(ppd, first.keyword);
    for (int index = 0; option && index < option->num_choices; ++index)
        if (const auto other = others.constFind(ppdName(option->choices[index].choice));
            other != others.cend())
            remedies += *other;
    return remedies;
}

QString shortList(const QStringList &names)
{
    if (!isListCut(names.size()))
        return joined(names);
    const QString named =
        names.first(kNamedOfMore).join(QCoreApplication::translate("RemedyWords", ", "));
    return QCoreApplication::translate("RemedyWords", "%1 and %2 more")
        .arg(named, QString::number(names.size() - kNamedOfMore));
}

bool isListCut(qsizetype length)
{
    return length > kLongestList;
}

QString remedyWords(ppd_file_t *ppd, const Remedy &remedy)
{
    return joined(namesOf(ppd, remedy, &SettingChange::to));
}

QString remedyTitle(ppd_file_t *ppd, const Remedy &remedy, const PPDMark &wanted)
{
    QString title = stepWords(ppd, wanted);
    for (auto change = remedy.changes.crbegin(); change != remedy.changes.crend(); ++change)
        title = stepWords(ppd, {change->keyword, change->to}, title);
    return title.left(1).toUpper() + title.mid(1);
}
