#include "dialog/printing/SettingRequests.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/job/Conflicts.h"
#include "dialog/job/PageRanges.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RefusalWatch.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QAbstractButton>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostCopies = 999;

Fault settingFault(const QString &sentence)
{
    return {FaultKind::Request, sentence};
}

Fault notNow(const QString &keyword, const QString &choice)
{
    return settingFault(QCoreApplication::translate("SettingRequests",
                                                    "%1=%2 cannot be chosen while the other "
                                                    "settings are as they are.")
                            .arg(displayText(keyword), displayText(choice)));
}

Fault badValue(const QString &keyword, const QString &choice)
{
    return settingFault(QCoreApplication::translate("SettingRequests", "%2 is no value for %1.")
                            .arg(displayText(keyword), displayText(choice)));
}

/// A fault when the printer's constraints do not allow the choice now.
Result<> checkConstraints(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    const QString clash = refusalSentence(ppd, keyword, choice);
    return clash.isNull() ? Result<>() : settingFault(clash);
}

// --- The dialog's own settings -------------------------------------------------------------------

bool takeCopies(PrintJob &job, const QString &value)
{
    const int copies = value.toInt();
    const bool isGood = copies >= 1 && copies <= kMostCopies;
    if (isGood)
        job.settings().copies = copies;
    return isGood;
}

bool takePages(PrintJob &job, const QString &value)
{
    const QString ranges = normalizedPageRanges(value);
    if (!ranges.isNull())
        job.settings().pageRanges = ranges;
    return !ranges.isNull();
}

bool takeOrientation(PrintJob &job, const QString &value)
{
    const bool isLandscape = value == "4"_L1 || value == "landscape"_L1;
    const bool isPortrait = value == "3"_L1 || value == "portrait"_L1;
    if (isLandscape || isPortrait)
        job.setOrientation(isLandscape ? PMOrientation::Landscape : PMOrientation::Portrait);
    return isLandscape || isPortrait;
}

bool takeScaling(PrintJob &job, const JobOption &option)
{
    const std::optional<PrintScaling> scaling = scalingOf(option);
    if (scaling)
        job.settings().scaling = *scaling;
    return scaling.has_value();
}

bool takePrintScaling(PrintJob &job, const QString &value)
{
    return takeScaling(job, {u"print-scaling"_s, value});
}

bool takeFitToPage(PrintJob &job, const QString &value)
{
    return takeScaling(job, {u"fit-to-page"_s, value});
}

struct OwnSetting
{
    QLatin1String name;
    bool (*take)(PrintJob &job, const QString &value);
};

constexpr std::array kOwnSettings{
    OwnSetting{"copies"_L1, takeCopies}, OwnSetting{"page-ranges"_L1, takePages},
    OwnSetting{"orientation-requested"_L1, takeOrientation},
    OwnSetting{"print-scaling"_L1, takePrintScaling}, OwnSetting{"fit-to-page"_L1, takeFitToPage}};

// --- The panels' controls ------------------------------------------------------------------------

/// The panel that manages the keyword; null without one.
const HostPanel *panelOf(const HostSession &session, const QString &keyword)
{
    for (const HostPanel &panel : session.panels())
        if (panel.panel->supportedPPDOptionKeys().value_or(QStringList()).contains(keyword))
            return &panel;
    return nullptr;
}

QString pick(const PDEPanelControls &panel, const QString &keyword, const QString &choice)
{
    QWidget *control = panel.controlOf(keyword);
    const QString name = outletsInView(panel).key(control);
    auto *button = qobject_cast<QAbstractButton *>(control);
    return button ? pickChecked(panel, name, panel.isTicked(keyword, choice))
                  : pickChoice(panel, name, choice);
}

/// Has every panel fill its controls, as it does when it is shown.
void prepareControls(HostSession &session)
{
    for (const HostPanel &panel : session.panels()) {
        if (!panel.controls || panel.controls->loadedView())
            continue;
        session.show(panel);
        session.hide(panel);
    }
}

/// The keyword as the slider spells it; null without one.
QString keywordOfSlider(const HostSession &session, const QString &keyword)
{
    for (const FractionSlider *slider : partsOfViews<FractionSlider>(session))
        if (isSameName(boundKeyOf(slider), keyword))
            return boundKeyOf(slider);
    return {};
}

/// How the setting is made with a control. None when no panel has a control for it.
std::optional<QString> pickInPanel(HostSession &session, const QString &keyword,
                                   const QString &choice)
{
    const HostPanel *panel = panelOf(session, keyword);
    if (panel && panel->controls && panel->controls->controlOf(keyword))
        return pick(*panel->controls, keyword, choice);
    bool isNumber = false;
    const double value = choice.toDouble(&isNumber);
    const QString bound = isNumber ? keywordOfSlider(session, keyword) : QString();
    if (!bound.isNull())
        return moveSlider(session, bound, value);
    return std::nullopt;
}

Result<> markByHost(PrintJob &job, const QString &keyword, const QString &choice)
{
    const Result<> checked = checkConstraints(job.ppd(), keyword, choice);
    if (checked)
        job.mark(keyword, choice);
    return checked;
}

/// A fault when the printer has no such setting, or not the choice.
Result<> checkChoice(const PrintJob &job, const QString &keyword, const QString &choice)
{
    if (!job.session())
        return settingFault(QCoreApplication::translate("SettingRequests",
                                                        "%1 cannot be set: the queue has no PPD.")
                                .arg(displayText(keyword)));
    if (!isChoice(job.ppd(), keyword))
        return settingFault(
            QCoreApplication::translate("SettingRequests", "The printer has no setting %1.")
                .arg(displayText(keyword)));
    if (!findChoice(findOption(job.ppd(), keyword), choice))
        return badValue(keyword, choice);
    return {};
}

Result<> pickSetting(PrintJob &job, const QString &keyword, const QString &choice)
{
    prepareControls(*job.session());
    const RefusalWatch watch(*job.session(), keyword, choice);
    const std::optional<QString> picked = pickInPanel(*job.session(), keyword, choice);
    if (!picked)
        return markByHost(job, keyword, choice);
    // The reason names parts of the view, which nobody knows by name.
    if (!picked->isNull())
        return notNow(keyword, choice);
    if (!watch.isRefused())
        return {};
    const Result<> checked = checkConstraints(job.ppd(), keyword, choice);
    return checked ? notNow(keyword, choice) : checked;
}

QString millimetres(double points)
{
    return QString::number(qRound(points / kPointsPerMillimetre * 10) / 10.0);
}

Result<> checkCustomPaper(ppd_file_t *ppd, const PMPaper &paper)
{
    const std::optional<CustomLimits> limits = customLimits(ppd);
    if (!limits)
        return settingFault(QCoreApplication::translate(
            "SettingRequests", "The printer takes no paper of a size of your own."));
    if (isWithin(*limits, paper.width, paper.height))
        return {};
    return settingFault(QCoreApplication::translate(
                            "SettingRequests",
                            "The printer takes no paper of %1 × %2 mm: sizes of your own go "
                            "from %3 × %4 mm to %5 × %6 mm.")
                            .arg(millimetres(paper.width), millimetres(paper.height),
                                 millimetres(limits->minWidth), millimetres(limits->minHeight),
                                 millimetres(limits->maxWidth), millimetres(limits->maxHeight)));
}

} // namespace

Result<> makeSetting(PrintJob &job, const QString &name, const QString &value)
{
    const auto own = std::ranges::find(kOwnSettings, name, &OwnSetting::name);
    if (own != kOwnSettings.end())
        return own->take(job, value) ? Result<>() : badValue(name, value);
    const auto [keyword, choice] =
        job.session() ? job.session()->spelled(name, value) : PPDMark{name, value};
    if (keyword == "PageSize"_L1)
        return choosePaper(job, choice);
    const Result<> checked = checkChoice(job, keyword, choice);
    return checked ? pickSetting(job, keyword, choice) : checked;
}

Result<> choosePaper(PrintJob &job, const QString &paper)
{
    if (!job.session())
        return checkChoice(job, u"PageSize"_s, paper);
    const std::optional<PMPaper> listed = paperOfChoice(job.ppd(), paper);
    const std::optional<PMPaper> custom = parseCustomPaper(paper);
    if (!listed && !custom)
        return settingFault(
            QCoreApplication::translate("SettingRequests", "The printer has no paper %1.")
                .arg(displayText(paper)));
    const Result<> checked = listed ? checkConstraints(job.ppd(), u"PageSize"_s, paper)
                                    : checkCustomPaper(job.ppd(), *custom);
    if (checked)
        job.setPaper(listed ? *listed : *custom);
    return checked;
}
