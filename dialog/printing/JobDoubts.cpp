#include "dialog/printing/JobDoubts.h"

#include "dialog/host/HostSession.h"
#include "dialog/job/Conflicts.h"
#include "dialog/job/Papers.h"
#include "dialog/job/PrintedSides.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The paper in the printer, by the name that a plug-in reads.
QString sheetOf(const PrintJob &job)
{
    return job.sheet().value_or(PMPaper()).name;
}

QString sheetText(const PrintJob &job)
{
    return displayText(paperText(job.ppd(), job.sheet().value_or(PMPaper())));
}

/// As PPDs name the choices: DuplexNoTumble, DuplexTumble; None and SimplexTumble are one-sided.
bool isTwoSided(const PrintJob &job)
{
    return markedChoice(job.ppd(), u"Duplex"_s).startsWith("Duplex"_L1, Qt::CaseInsensitive);
}

/// Null when the paper may be printed on both sides, or is not to be.
QString oneSidedPaper(const PrintJob &job)
{
    if (!isOnOneSidedPaper(job))
        return {};
    return QCoreApplication::translate("JobDoubts",
                                       "The printer cannot print on both sides of this paper: %1.")
        .arg(sheetText(job));
}

bool wasMadeOrShown(const PrintJob &job, const SettingState &before, const SettingChange &change)
{
    const PPDMark former{change.keyword, change.from};
    return job.isChosen(former) || before.shown.contains(former);
}

/// As the server's filters have it: a booklet has two pages a side, and needs both sides.
QStringList notesOnBooklet(const PrintJob &job)
{
    const JobLayout &layout = job.settings().layout;
    if (layout.booklet != "on"_L1)
        return {};
    QStringList notes;
    if (!layout.pagesPerSheet.isEmpty() && layout.pagesPerSheet != "2"_L1)
        notes +=
            QCoreApplication::translate("JobDoubts", "A booklet has two pages on a side, not %1.")
                .arg(layout.pagesPerSheet);
    if (job.session() && findOption(job.ppd(), u"Duplex"_s) && !isTwoSided(job))
        notes += QCoreApplication::translate(
            "JobDoubts", "A booklet needs both sides of the paper; this job is printed on one.");
    return notes;
}

/// As the server's filters have it: they choose pages when several of them stand on a side already.
QStringList notesOnCounting(const HostSettings &settings)
{
    const bool areChosen = !settings.pageRanges.isEmpty() || (!settings.layout.pageSet.isEmpty() &&
                                                              settings.layout.pageSet != "all"_L1);
    if (!areChosen || !hasSeveralPagesOnASide(settings.layout))
        return {};
    return {QCoreApplication::translate(
        "JobDoubts", "With several pages on a sheet, \"Pages\" and \"Even and Odd\" count the "
                     "printed sides.")};
}

} // namespace

bool isOnOneSidedPaper(const PrintJob &job)
{
    const auto papers = job.session()->twoSidedPapers();
    return papers && isTwoSided(job) && !sheetOf(job).isNull() && !papers->contains(sheetOf(job));
}

QStringList doubtsOf(const PrintJob &job, const SettingState &state)
{
    QStringList doubts;
    if (!job.session())
        return doubts;
    const auto unlike = unlikeShown(state, job.session()->choiceForms());
    for (const SettingChange &change : unlike)
        doubts += replacementSentence(job.ppd(), change);
    if (const QString paper = oneSidedPaper(job); !paper.isNull())
        doubts += paper;
    return doubts;
}

QStringList replacedBySaving(const PrintJob &job, const SettingState &before,
                             const SettingState &after)
{
    QStringList replaced;
    if (!job.session())
        return replaced;
    const auto changes = changesBetween(before.marks, after.marks, job.session()->choiceForms());
    for (const SettingChange &change : changes)
        if (wasMadeOrShown(job, before, change))
            replaced += replacementSentence(job.ppd(), change);
    return replaced;
}

QStringList notesOnLayout(const PrintJob &job)
{
    return notesOnBooklet(job) + notesOnCounting(job.settings());
}

QList<JobAdvice> adviceFor(const PrintJob &job)
{
    QList<JobAdvice> found;
    if (!job.session())
        return found;
    for (const PaperAdvice &advice : job.session()->paperAdvice()) {
        const bool isKnown = findChoice(findOption(job.ppd(), advice.keyword), advice.choice);
        if (isKnown && advice.isFor(sheetOf(job)) &&
            !isSameName(markedChoice(job.ppd(), advice.keyword), advice.choice))
            found +=
                {{advice.keyword, advice.choice},
                 QCoreApplication::translate("JobDoubts", "For %1 there is \"%2\".")
                     .arg(sheetText(job), choiceText(job.ppd(), advice.keyword, advice.choice))};
    }
    return found;
}
