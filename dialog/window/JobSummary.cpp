#include "dialog/window/JobSummary.h"

#include "dialog/host/PPDMarks.h"
#include "dialog/job/FeatureTexts.h"
#include "dialog/job/JobLayout.h"
#include "dialog/job/JobOptions.h"
#include "dialog/job/Papers.h"
#include "dialog/job/SettingTitle.h"
#include "dialog/printing/FeaturePicks.h"
#include "dialog/printing/OriginWords.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingState.h"
#include "dialog/printing/SettingValues.h"
#include "dialog/window/SentSettings.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMTicketKeys.h"

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
    const auto add = [&](const QString &name, const QString &value) {
        own.lines += {settingTitle(job.ppd(), name), value, name};
    };
    if (const std::optional<PMPaper> sheet = job.sheet())
        add(u"PageSize"_s, paperText(job.ppd(), *sheet));
    if (const std::optional<PMPaper> page = job.documentPage())
        add(kPMMappedPaperKey, paperText(job.ppd(), *page));
    add(u"print-scaling"_s, scalingTitle(settings.scaling, job.scalingCase()));
    add(u"orientation-requested"_s, job.orientation() == PMOrientation::Landscape
                                        ? JobSummary::tr("Landscape")
                                        : JobSummary::tr("Portrait"));
    add(u"copies"_s, QString::number(settings.copies));
    add(u"page-ranges"_s,
        settings.pageRanges.isEmpty() ? JobSummary::tr("All") : settings.pageRanges);
    for (const QString &keyword : job.ownKeywords()) {
        ppd_option_t *option = findOption(job.ppd(), keyword);
        const ppd_choice_t *choice = findChoice(option, markedChoice(job.ppd(), keyword));
        if (choice)
            add(keyword, ppdText(choice->text));
    }
    if (job.offersColorMatching())
        add(kPMColorMatchingModeKey, job.colorMatching() == PrintJob::ColorMatching::Printer
                                         ? JobSummary::tr("By the Printer")
                                         : JobSummary::tr("By the Application"));
    return own;
}

/// What the part of that name lets the user choose.
SummarySection featuresSection(const PrintJob &job)
{
    SummarySection section{JobSummary::tr("Printer Features"), {}};
    for (const PrinterFeature &feature : choosableFeatures(job))
        if (const QString value = markedValue(job.ppd(), feature.keyword); !value.isNull())
            section.lines +=
                {feature.text, valueText(job.ppd(), feature.keyword, value), feature.keyword};
    return section;
}

SummarySection layoutSection(const PrintJob &job)
{
    SummarySection section{JobSummary::tr("Layout & Job"), {}};
    if (!job.ownTitle().isEmpty())
        section.lines += {settingTitle(job.ppd(), u"job-name"_s), job.ownTitle(), u"job-name"_s};
    JobLayout layout = job.settings().layout;
    layout.collation = collationOf(job.settings());
    for (const LayoutSetting &setting : layoutSettings())
        if (const QString &value = layout.*setting.value; !value.isEmpty())
            section.lines += {layoutTitle(setting), layoutText(setting, value), setting.option};
    return section;
}

/// A panel tells titles alone: the keyword whose title it is, where that is of one only.
QString keywordOf(const PrintJob &job, const QString &title, const QStringList &keywords)
{
    QString found;
    for (const QString &keyword : keywords) {
        const ppd_option_t *option = findOption(job.ppd(), keyword);
        if (!option || ppdText(option->text) != title || keyword == found)
            continue;
        if (!found.isNull())
            return {};
        found = keyword;
    }
    return found;
}

SummarySection named(SummarySection section, const PrintJob &job, const QStringList &keywords)
{
    for (SummarySection::Line &line : section.lines)
        line.name = keywordOf(job, line.title, keywords);
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
        sections += named(sectionOf(panel.panelName(), info), job,
                          told.constLast().keywords + job.session()->titledKeywords());
    }
    // Panels may change what is sent while they sum it up.
    sections.prepend(ownSection(job));
    sections += featuresSection(job);
    sections += layoutSection(job);
    sections += SummarySection{JobSummary::tr("Also Sent"), linesOfTheRest(job, told)};
    return sections;
}

void addOrigins(QList<SummarySection> &sections, const PrintJob &job, const SettingOrigins &origins)
{
    const SettingValues values = settingValues(job, settingState(job));
    const SettingValues defaults = defaultValues(job);
    for (SummarySection &section : sections)
        for (SummarySection::Line &line : section.lines) {
            if (line.name.isNull())
                continue;
            line.isDefault = values.value(line.name) == defaults.value(line.name);
            line.origin = originWords(job.ppd(), origins.originOf(line.name));
        }
}
