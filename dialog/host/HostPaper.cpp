#include "dialog/host/HostPaper.h"

#include "platform/ppd/PPDText.h"

using namespace Qt::StringLiterals;

std::optional<PMPaper> markedPaper(ppd_file_t *ppd)
{
    const QString choice = markedChoice(ppd, u"PageSize"_s);
    if (choice.isNull())
        return std::nullopt;
    PMPaper paper;
    paper.name = choice;
    paper.ppdName = choice == "Custom"_L1 ? QString() : choice;
    if (const ppd_size_t *size = ppdPageSize(ppd, ppdBytes(choice).constData())) {
        paper.width = static_cast<double>(size->width);
        paper.height = static_cast<double>(size->length);
    }
    return paper;
}
