#include "dialog/printing/FeaturePicks.h"

#include "dialog/host/controls/PanelParts.h"
#include "dialog/job/Conflicts.h"
#include "dialog/job/FeatureTexts.h"
#include "dialog/printing/PrintJob.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtCore/QCoreApplication>

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

} // namespace

QList<FeatureGroup> featuresOf(const PrintJob &job)
{
    if (!job.session())
        return {};
    return printerFeatures(job.ppd(), job.ownKeywords() + job.session()->watchedKeywords() +
                                          keywordsOfPanels(*job.session()));
}

QList<PrinterFeature> choosableFeatures(const PrintJob &job)
{
    QList<PrinterFeature> features;
    for (const FeatureGroup &group : featuresOf(job))
        if (!group.isInstalled)
            features += group.features;
    return features;
}

Result<> chooseFeature(PrintJob &job, const PrinterFeature &feature, const QString &value)
{
    if (value.isEmpty())
        return Fault{FaultKind::Request, QCoreApplication::translate(
                                             "FeaturePicks", "\"%1\" needs at least one choice.")
                                             .arg(feature.text)};
    const QString clash = refusalSentence(job.ppd(), feature.keyword, value);
    if (!clash.isNull())
        return Fault{FaultKind::Request, clash};
    if (job.mark(feature.keyword, value))
        return {};
    return Fault{
        FaultKind::Request,
        QCoreApplication::translate("FeaturePicks", "The printer does not take \"%1: %2\".")
            .arg(feature.text, valueText(job.ppd(), feature.keyword, value))};
}
