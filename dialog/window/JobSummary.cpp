#include "dialog/window/JobSummary.h"

#include "dialog/job/JobLayout.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/SentSettings.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct JobSummary
{
    Q_DECLARE_TR_FUNCTIONS(JobSummary)
};

SummarySection ownSection(const PrintJob &job)
{
    const HostSettings &settings = job.settings();
    SummarySection own{JobSummary::tr("Page Setup"), {}};
    if (const std::optional<PMPaper> sheet = job.sheet())
        own.lines += {JobSummary::tr("Paper in the Printer"), paperText(job.ppd(), *sheet)};
    if (const std::optional<PMPaper> page = job.documentPage())
        own.lines += {JobSummary::tr("Document Page"), paperText(job.ppd(), *page)};
    own.lines += {JobSummary::tr("Scaling"), scalingTitle(settings.scaling, job.scalingCase())};
    const bool isLandscape = job.orientation() == PMOrientation::Landscape;
    own.lines += {JobSummary::tr("Orientation"),
                  isLandscape ? JobSummary::tr("Landscape") : JobSummary::tr("Portrait")};
    own.lines += {JobSummary::tr("Copies"), QString::number(settings.copies)};
    own.lines += {JobSummary::tr("Pages"),
                  settings.pageRanges.isEmpty() ? JobSummary::tr("All") : settings.pageRanges};
    for (const QString &keyword : job.ownKeywords()) {
        ppd_option_t *option = findOption(job.ppd(), keyword);
        const ppd_choice_t *choice = findChoice(option, markedChoice(job.ppd(), keyword));
        if (choice)
            own.lines += {ppdText(option->text), ppdText(choice->text)};
    }
    if (job.offersColorMatching()) {
        const bool byPrinter = job.colorMatching() == PrintJob::ColorMatching::Printer;
        own.lines +=
            {JobSummary::tr("Color Management"),
             byPrinter ? JobSummary::tr("By the Printer") : JobSummary::tr("By the Application")};
    }
    return own;
}

SummarySection layoutSection(const PrintJob &job)
{
    SummarySection section{JobSummary::tr("Layout & Job"), {}};
    if (!job.ownTitle().isEmpty())
        section.lines += {JobSummary::tr("Job Title"), job.ownTitle()};
    for (const LayoutSetting &setting : layoutSettings())
        if (const QString &value = job.settings().layout.*setting.value; !value.isEmpty())
            section.lines += {layoutTitle(setting), layoutText(setting, value)};
    return section;
}

} // namespace

QList<SummarySection> summaryOf(PrintJob &job, const std::vector<const HostPanel *> &panels)
{
    QList<SummarySection> sections;
    QList<PanelSummary> told;
    for (const HostPanel *shown : panels) {
        PDEPanel &panel = *shown->panel;
        const QVariantMap info = job.session()->summary(*shown);
        told += {panel.supportedPPDOptionKeys().value_or(QStringList()), info};
        sections += sectionOf(panel.panelName(), info);
    }
    // Panels may change what is sent while they sum it up.
    sections.prepend(ownSection(job));
    sections += layoutSection(job);
    sections += SummarySection{JobSummary::tr("Also Sent"), linesOfTheRest(job, told)};
    return sections;
}
