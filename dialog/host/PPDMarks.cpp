#include "dialog/host/PPDMarks.h"

#include "platform/ppd/PPDText.h"

#include <QtCore/QHash>

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

// libcups looks a mark up in an array of its own beside the flag.
void unmark(ppd_file_t *ppd, ppd_choice_t *choice)
{
    choice->marked = 0;
    cupsArrayRemove(ppd->marked, choice);
}

void addMarks(ppd_file_t *ppd, ppd_group_t *groups, int count, QList<PPDMark> &marks)
{
    for (int group = 0; group < count; ++group) {
        for (int index = 0; index < groups[group].num_options; ++index) {
            const ppd_option_t &option = groups[group].options[index];
            const bool isFound = ppdFindOption(ppd, option.keyword) == &option;
            const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option.keyword);
            if (isFound && choice && qstrcmp(option.keyword, "PageRegion") != 0)
                marks += PPDMark{ppdName(option.keyword), ppdName(choice->choice)};
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
    const ppd_choice_t *wanted = findChoice(option, choice);
    if (wanted)
        ppdMarkOption(ppd, option->keyword, wanted->choice);
    return wanted != nullptr;
}

bool markChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    ppd_option_t *option = findOption(ppd, keyword);
    ppd_choice_t *wanted = findChoice(option, choice);
    const QString before = markedChoice(ppd, keyword);
    if (!wanted || before == choice)
        return wanted != nullptr;
    const auto conflictsBefore = conflictingOptions(ppd);
    ppdMarkOption(ppd, option->keyword, wanted->choice);
    if (std::ranges::includes(conflictsBefore, conflictingOptions(ppd)))
        return true;
    if (!forceChoice(ppd, keyword, before))
        unmark(ppd, wanted);
    return false;
}
