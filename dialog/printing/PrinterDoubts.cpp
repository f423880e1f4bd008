#include "dialog/printing/PrinterDoubts.h"

#include "dialog/cups/PrinterCondition.h"
#include "dialog/job/ColorMode.h"
#include "dialog/job/PaperSizes.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSlot = "InputSlot"_L1;

bool mayPrintInColor(const PrintJob &job)
{
    return ::mayPrintInColor(job.wholeOptions().options);
}

bool isInTrouble(const Supply &supply)
{
    return supply.state == SupplyState::Low || supply.state == SupplyState::Empty;
}

/// Most printers have all they need, and nothing is worked out for them.
QStringList doubtsOnSupplies(const PrintJob &job, const QList<Supply> &supplies)
{
    return std::ranges::any_of(supplies, isInTrouble) ? sentencesOn(supplies, mayPrintInColor(job))
                                                      : QStringList();
}

QString mediumText(const QList<PaperSize> &papers, const LoadedMedium &medium)
{
    const auto known = std::ranges::find_if(papers, [&](const PaperSize &paper) {
        return isLoaded({medium}, paper.width, paper.height);
    });
    return known == papers.end() ? measureText(medium.width, medium.height)
                                 : displayText(known->text);
}

QStringList textsOf(const PrintJob &job, const QList<LoadedMedium> &media)
{
    const QList<PaperSize> papers = paperSizes(job.ppd());
    QStringList texts;
    for (const LoadedMedium &medium : media)
        texts += mediumText(papers, medium);
    texts.removeDuplicates();
    return texts;
}

QStringList doubtsOnPaper(const PrintJob &job, const QList<LoadedMedium> &loaded)
{
    const std::optional<PMPaper> sheet = job.sheet();
    const QList<LoadedMedium> there = mediaIn(loaded, markedChoice(job.ppd(), kSlot));
    if (there.isEmpty() || !sheet || isLoaded(there, sheet->width, sheet->height))
        return {};
    return {QCoreApplication::translate("PrinterDoubts",
                                        "The paper of this job is not loaded: %1. There is %2.")
                .arg(displayText(paperText(job.ppd(), *sheet)),
                     textsOf(job, there).join(QCoreApplication::translate("Supplies", ", ")))};
}

/// A class has the PPD of one of its members, and a job may go to any of them.
QStringList doubtsOnClass(const QList<ClassMember> &members)
{
    if (!areOfDifferentModels(members))
        return {};
    QStringList texts;
    for (const ClassMember &member : members)
        texts += displayText(member.model.isEmpty() ? member.queue
                                                    : u"%1 (%2)"_s.arg(member.queue, member.model));
    return {QCoreApplication::translate(
                "PrinterDoubts",
                "The jobs of this queue go to printers of different models: %1. What is set for "
                "one of them may come out differently on another.")
                .arg(texts.join(QCoreApplication::translate("Supplies", ", ")))};
}

} // namespace

QStringList doubtsAboutPrinter(const PrintJob &job, const PrinterCondition &printer)
{
    return doubtsOnClass(printer.members) + doubtsOnSupplies(job, printer.supplies) +
           doubtsOnPaper(job, printer.loaded);
}

QStringList loadedTexts(const PrintJob &job, const PrinterCondition &printer)
{
    return textsOf(job, printer.loaded);
}
