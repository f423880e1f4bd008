#include "dialog/printing/FeaturePicks.h"

#include "dialog/host/CustomParameters.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/job/Conflicts.h"
#include "dialog/job/FeatureTexts.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtCore/QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// The keywords that panels list, that controls of their loaded views are bound to, and that title
/// values of theirs in the ticket.
QStringList keywordsOfPanels(const HostSession &session)
{
    QStringList keywords = session.titledKeywords();
    for (const HostPanel &panel : session.panels())
        keywords += panel.panel->supportedPPDOptionKeys().value_or(QStringList());
    for (const QWidget *part : partsOfViews<QWidget>(session))
        if (const QString bound = boundKeyOf(part); !bound.isEmpty())
            keywords += bound;
    return keywords;
}

/// The choices of a value that constraints of the PPD may forbid.
QStringList constrainedChoices(const PrintJob &job, const PrinterFeature &feature,
                               const QString &value)
{
    if (findChoice(findOption(job.ppd(), feature.keyword), value))
        return {value};
    return feature.kind == PrinterFeature::Kind::Many ? value.split(u',')
                                                      : QStringList(u"Custom"_s);
}

} // namespace

QList<FeatureGroup> featuresOf(const PrintJob &job)
{
    if (!job.session())
        return {};
    return printerFeatures(job.ppd(), job.ownKeywords() + job.session()->watchedKeywords() +
                                          keywordsOfPanels(*job.session()));
}

Result<> chooseFeature(PrintJob &job, const PrinterFeature &feature, const QString &value)
{
    if (value.isEmpty())
        return Fault{FaultKind::Request, QCoreApplication::translate(
                                             "FeaturePicks", "\"%1\" needs at least one choice.")
                                             .arg(feature.text)};
    for (const QString &choice : constrainedChoices(job, feature, value))
        if (const QString clash = refusalSentence(job.ppd(), feature.keyword, choice);
            !clash.isNull())
            return Fault{FaultKind::Request, clash};
    if (job.mark(feature.keyword, value))
        return {};
    return Fault{
        FaultKind::Request,
        QCoreApplication::translate("FeaturePicks", "The printer does not take \"%1: %2\".")
            .arg(feature.text, valueText(job.ppd(), feature.keyword, value))};
}
