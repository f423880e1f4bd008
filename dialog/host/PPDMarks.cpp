#include "dialog/host/PPDMarks.h"

#include "platform/pde/PPDText.h"

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

} // namespace

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
