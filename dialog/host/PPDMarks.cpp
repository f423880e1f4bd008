#include "dialog/host/PPDMarks.h"

#include "platform/pde/PPDText.h"

bool forceChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    if (!findChoice(findOption(ppd, keyword), choice))
        return false;
    ppdMarkOption(ppd, ppdBytes(keyword).constData(), ppdBytes(choice).constData());
    return true;
}

bool markChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    const QString before = markedChoice(ppd, keyword);
    if (before == choice && !before.isNull())
        return findChoice(findOption(ppd, keyword), choice) != nullptr;
    const int conflictsBefore = ppdConflicts(ppd);
    if (!forceChoice(ppd, keyword, choice))
        return false;
    if (ppdConflicts(ppd) <= conflictsBefore)
        return true;
    if (!forceChoice(ppd, keyword, before))
        findChoice(findOption(ppd, keyword), choice)->marked = 0;
    return false;
}
