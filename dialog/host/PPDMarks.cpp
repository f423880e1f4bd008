#include "dialog/host/PPDMarks.h"

#include "dialog/host/CustomParameters.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <algorithm>
#include <vector>

namespace {

// The options that the PPD's constraints find in conflict as the marks are now.
std::vector<const ppd_option_t *> conflictingOptions(ppd_file_t *ppd)
{
    std::vector<const ppd_option_t *> conflicting;
    if (ppdConflicts(ppd) == 0)
        return conflicting;
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd)) {
        if (option->conflicted)
            conflicting.push_back(option);
    }
    std::ranges::sort(conflicting);
    return conflicting;
}

// libcups looks a mark up in an array of its own beside the flags. There the choices of one option
// are all alike to it, so that it may remove another one than it is given.
void unmarkAll(ppd_file_t *ppd, ppd_option_t &option)
{
    for (int index = 0; index < option.num_choices; ++index)
        option.choices[index].marked = 0;
    while (ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option.keyword))
        cupsArrayRemove(ppd->marked, choice);
}

// Of an option with several marks at once, libcups leaves the earlier ones beside a new one and
// answers any of them.
void mark(ppd_file_t *ppd, ppd_option_t &option, const ppd_choice_t &choice)
{
    if (option.ui == PPD_UI_PICKMANY)
        unmarkAll(ppd, option);
    ppdMarkOption(ppd, option.keyword, choice.choice);
}

/// Of an option that may have several marks.
std::vector<const ppd_choice_t *> flaggedChoices(const ppd_option_t &option)
{
    std::vector<const ppd_choice_t *> flagged;
    for (int index = 0; index < option.num_choices; ++index) {
        if (option.choices[index].marked)
            flagged.push_back(&option.choices[index]);
    }
    return flagged;
}

std::vector<const ppd_choice_t *> markedChoices(ppd_file_t *ppd, const ppd_option_t &option)
{
    if (option.ui == PPD_UI_PICKMANY)
        return flaggedChoices(option);
    const ppd_choice_t *single = ppdFindMarkedChoice(ppd, option.keyword);
    return single ? std::vector{single} : std::vector<const ppd_choice_t *>();
}

/// As a PPDMark holds it; `choice` is one that is marked.
QString textOf(ppd_file_t *ppd, const ppd_option_t &option, const ppd_choice_t &choice)
{
    const auto several =
        option.ui == PPD_UI_PICKMANY ? flaggedChoices(option) : std::vector<const ppd_choice_t *>();
    if (several.size() > 1) {
        QStringList names;
        for (const ppd_choice_t *one : several)
            names += ppdName(one->choice);
        return names.join(u',');
    }
    const QString name = ppdName(choice.choice);
    const QString custom = isCustomName(name)
                               ? customChoice(customParameters(ppd, ppdName(option.keyword)))
                               : QString();
    return custom.isNull() ? name : custom;
}

/// The choices that the names stand for; empty when one of them is none of the option's.
std::vector<const ppd_choice_t *> choicesOf(ppd_option_t &option, const QString &names)
{
    std::vector<const ppd_choice_t *> choices;
    for (const QString &name : names.split(u',')) {
        choices.push_back(findChoice(&option, name));
        if (!choices.back())
            return {};
    }
    return choices;
}

bool markSeveral(ppd_file_t *ppd, ppd_option_t &option, const QString &names)
{
    const auto choices = choicesOf(option, names);
    if (option.ui != PPD_UI_PICKMANY || choices.empty())
        return false;
    unmarkAll(ppd, option);
    for (const ppd_choice_t *choice : choices)
        ppdMarkOption(ppd, option.keyword, choice->choice);
    return true;
}

/// The value of the user's own that the choice stands for; null when it is none that the option
/// takes.
QString customValue(ppd_file_t *ppd, const ppd_option_t &option, const QString &choice)
{
    const QList<CustomParameter> parameters =
        parametersOf(choice, customParameters(ppd, ppdName(option.keyword)));
    const bool isGood = std::ranges::all_of(parameters, [](const auto &parameter) {
        return faultOf(parameter) == ParameterFault::None;
    });
    return isGood ? customChoice(parameters) : QString();
}

// libcups takes whatever it is given, and reads over what it does not know.
bool markCustom(ppd_file_t *ppd, const ppd_option_t &option, const QString &choice)
{
    const QString value = customValue(ppd, option, choice);
    if (!value.isNull())
        ppdMarkOption(ppd, option.keyword, value.toUtf8().constData());
    return !value.isNull();
}

/// The names of several choices, spelt and in order as the PPD has them; null when one of them is
/// none of the option's, or there may be but one.
QString severalNames(ppd_option_t &option, const QString &names)
{
    const auto choices = choicesOf(option, names);
    QStringList spelled;
    for (int index = 0; index < option.num_choices; ++index)
        if (std::ranges::find(choices, &option.choices[index]) != choices.end())
            spelled += ppdName(option.choices[index].choice);
    return option.ui == PPD_UI_PICKMANY && !spelled.isEmpty() ? spelled.join(u',') : QString();
}

void addMarks(ppd_file_t *ppd, ppd_group_t *groups, int count, QList<PPDMark> &marks)
{
    for (int group = 0; group < count; ++group) {
        for (int index = 0; index < groups[group].num_options; ++index) {
            const ppd_option_t &option = groups[group].options[index];
            const bool isFound = ppdFindOption(ppd, option.keyword) == &option;
            const ppd_choice_t *choice =
                isFound ? ppdFindMarkedChoice(ppd, option.keyword) : nullptr;
            if (choice && qstricmp(option.keyword, "PageRegion") != 0)
                marks += PPDMark{ppdName(option.keyword), textOf(ppd, option, *choice)};
        }
        addMarks(ppd, groups[group].subgroups, groups[group].num_subgroups, marks);
    }
}

} // namespace

QList<PPDMark> marksOf(ppd_file_t *ppd)
{
    QList<PPDMark> marks;
    if (ppd)
        addMarks(ppd, ppd->groups, ppd->num_groups, marks);
    return marks;
}

QString markedValue(ppd_file_t *ppd, const QString &keyword)
{
    const ppd_option_t *option = findOption(ppd, keyword);
    const ppd_choice_t *choice = option ? ppdFindMarkedChoice(ppd, option->keyword) : nullptr;
    return choice ? textOf(ppd, *option, *choice) : QString();
}

QString normalizedValue(ppd_file_t *ppd, const QString &keyword, const QString &value)
{
    ppd_option_t *option = findOption(ppd, keyword);
    if (!option)
        return {};
    if (const ppd_choice_t *choice = findChoice(option, value))
        return ppdName(choice->choice);
    const QString several = severalNames(*option, value);
    return several.isNull() ? customValue(ppd, *option, value) : several;
}

QList<PPDMark> changedMarks(ppd_file_t *ppd, const QList<PPDMark> &before)
{
    QHash<QString, QString> known;
    for (const PPDMark &mark : before)
        known.insert(mark.keyword, mark.choice);
    QList<PPDMark> changed = marksOf(ppd);
    changed.removeIf([&](const PPDMark &mark) { return known.value(mark.keyword) == mark.choice; });
    return changed;
}

bool forceChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    ppd_option_t *option = findOption(ppd, keyword);
    if (!option)
        return false;
    const ppd_choice_t *wanted = findChoice(option, choice);
    if (!wanted)
        return markSeveral(ppd, *option, choice) || markCustom(ppd, *option, choice);
    mark(ppd, *option, *wanted);
    return true;
}

bool markChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    ppd_option_t *option = findOption(ppd, keyword);
    const ppd_choice_t *wanted = findChoice(option, choice);
    if (!wanted)
        return false;
    const auto before = markedChoices(ppd, *option);
    if (before == std::vector{wanted})
        return true;
    const auto conflictsBefore = conflictingOptions(ppd);
    mark(ppd, *option, *wanted);
    if (std::ranges::includes(conflictsBefore, conflictingOptions(ppd)))
        return true;
    unmarkAll(ppd, *option);
    for (const ppd_choice_t *former : before)
        ppdMarkOption(ppd, option->keyword, former->choice);
    return false;
}
