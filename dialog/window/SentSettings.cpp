#include "dialog/window/SentSettings.h"

#include "dialog/host/HostSession.h"
#include "dialog/job/FeatureTexts.h"
#include "dialog/job/JobLayout.h"
#include "dialog/job/Papers.h"
#include "dialog/job/StandardAttributes.h"
#include "dialog/printing/FeaturePicks.h"
#include "platform/pde/PDESummary.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMTicketKeys.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The value that the panel tells under the title; invalid when it tells none, or tells it of
/// several things: then it is not known of which.
QVariant toldUnder(const QString &title, const PanelSummary &panel)
{
    return summaryOrder(panel.info).count(title) == 1 ? panel.info.value(title) : QVariant();
}

/// The option of the PPD whose text is the setting's title: its own, or for a value of the ticket
/// the one that the plug-in names. Null without one.
ppd_option_t *optionOf(const PrintJob &job, const QString &name)
{
    if (isChoice(job.ppd(), name))
        return findOption(job.ppd(), name);
    return job.session() ? findOption(job.ppd(), job.session()->keywordOfTicketKey(name)) : nullptr;
}

bool isPaperTold(const PrintJob &job, const QString &choice)
{
    const std::optional<PMPaper> paper = job.paper();
    return choice == job.mappedPaper() ||
           (paper &&
            (choice == paper->ppdName || choice == customPageSize(paper->width, paper->height)));
}

bool isFeature(const QList<PrinterFeature> &features, const JobOption &option)
{
    return std::ranges::any_of(features, [&](const PrinterFeature &feature) {
        return isSameName(feature.keyword, option.name);
    });
}

/// Whether the dialog itself has a line of it.
bool isTold(const PrintJob &job, const JobOption &option)
{
    static const QStringList always{u"copies"_s, u"page-ranges"_s, u"print-scaling"_s,
                                    u"orientation-requested"_s, u"pdfAutoRotate"_s};
    if (isSameName(option.name, u"PageSize"_s))
        return isPaperTold(job, option.value);
    if (option.name == kPMColorMatchingModeKey)
        return job.offersColorMatching();
    return always.contains(option.name) || layoutSetting(option.name) ||
           job.ownKeywords().contains(option.name, Qt::CaseInsensitive);
}

bool isTold(const PrintJob &job, const JobOption &option, const PanelSummary &panel)
{
    const ppd_option_t *named = optionOf(job, option.name);
    const QVariant told = named ? toldUnder(ppdText(named->text), panel) : QVariant();
    return isChoice(job.ppd(), option.name)
               ? told.isValid() && panel.keywords.contains(option.name, Qt::CaseInsensitive)
               : told.isValid() && told.toString() == option.value;
}

bool isDefault(const PrintJob &job, const JobOption &option)
{
    return job.session() &&
           job.session()->defaultMarks().contains(PPDMark{option.name, option.value});
}

/// Without the standard attributes that say the same as a choice, and the printer's defaults, which
/// a job carries that may go to any queue.
QList<JobOption> sentOptions(const PrintJob &job)
{
    QList<JobOption> options = job.options().options;
    const QList<JobOption> doubles =
        standardAttributes(marksOf(job.ppd()), options, job.attributeRules());
    options.removeIf([&](const JobOption &option) {
        return doubles.contains(option) || isDefault(job, option);
    });
    return options;
}

SummarySection::Line lineOf(const PrintJob &job, const JobOption &option)
{
    ppd_option_t *named = optionOf(job, option.name);
    const QString title = named ? ppdText(named->text) : QString();
    const QString keyword = named ? ppdName(named->keyword) : QString();
    return {title.isEmpty() ? option.name : title, valueText(job.ppd(), keyword, option.value),
            keyword.isEmpty() ? option.name : keyword};
}

} // namespace

QList<SummarySection::Line> linesOfTheRest(const PrintJob &job, const QList<PanelSummary> &panels)
{
    const QStringList foldStates = job.session() ? job.session()->foldStateKeys() : QStringList();
    const QList<PrinterFeature> features = choosableFeatures(job);
    QList<SummarySection::Line> lines;
    for (const JobOption &option : sentOptions(job)) {
        const bool isToldByPanel = std::ranges::any_of(
            panels, [&](const PanelSummary &panel) { return isTold(job, option, panel); });
        if (!isToldByPanel && !isTold(job, option) && !isFeature(features, option) &&
            !foldStates.contains(option.name))
            lines += lineOf(job, option);
    }
    return lines;
}
