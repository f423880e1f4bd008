#include "dialog/replay/StateReport.h"

#include "dialog/host/controls/PanelParts.h"
#include "dialog/replay/ControlReport.h"
#include "platform/foundation/ObservableDictionary.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/PanelPoint.h"

#include <QtCore/QJsonArray>

using namespace Qt::StringLiterals;

namespace {

QJsonValue effectContentReport(const ObservableDictionary *content)
{
    return content ? QJsonValue(jsonObject(content->values())) : QJsonValue();
}

QJsonArray rowReports(const PDEPanelInspection::Rows &rows)
{
    QJsonArray reports;
    for (const PDEPanelInspection::Row &row : rows.rows)
        reports << QJsonObject{{u"label"_s, row.label}, {u"id"_s, row.id}};
    return reports;
}

QJsonValue pictureReport(const ImageView *view)
{
    if (!view || view->image().isNull())
        return {};
    return QJsonObject{{u"width"_s, view->image().width()},
                       {u"height"_s, view->image().height()},
                       {u"drawn"_s, view->imagesPut()}};
}

void addInspection(QJsonObject &report, const PDEPanelInspection &inspection)
{
    report.insert("flags"_L1, inspection.inspectedFlags());
    report.insert("paperName"_L1, textOrNull(inspection.inspectedPaperName()));
    report.insert("outputBin"_L1, jsonObject(inspection.inspectedOutputBin()));
    report.insert("effectContent"_L1, effectContentReport(inspection.inspectedEffectContent()));
    if (const auto rows = inspection.inspectedRows()) {
        report.insert("rows"_L1, rowReports(*rows));
        report.insert("selectedRow"_L1, textOrNull(rows->selectedRow));
    }
    if (inspection.inspectedHasPicture())
        report.insert("picture"_L1, pictureReport(inspection.inspectedPicture()));
}

QJsonObject panelReport(const HostPanel &panel, const QWidget *view)
{
    const auto keys = panel.panel->supportedPPDOptionKeys();
    QJsonObject report{
        {u"keys"_s, keys ? QJsonValue(QJsonArray::fromStringList(*keys)) : QJsonValue()},
        {u"height"_s, view ? QJsonValue(toPoints(view->height())) : QJsonValue()},
    };
    if (panel.controls)
        report.insert("labels"_L1, labelReports(*panel.controls));
    if (panel.controls && view)
        report.insert("controls"_L1, controlReports(*panel.controls));
    if (panel.inspection)
        addInspection(report, *panel.inspection);
    return report;
}

QJsonObject markReports(const QMap<QString, QString> &marks)
{
    QJsonObject reports;
    for (auto mark = marks.cbegin(); mark != marks.cend(); ++mark)
        reports.insert(mark.key(), mark.value());
    return reports;
}

} // namespace

QJsonObject panelReports(const HostSession &session)
{
    QJsonObject reports;
    for (const HostPanel &panel : session.panels())
        reports.insert(panel.name, panelReport(panel, session.loadedView(panel)));
    return reports;
}

OrderedMembers stateReport(const HostSession *session)
{
    return {
        {u"panels"_s, session ? panelReports(*session) : QJsonObject()},
        {u"marks"_s, session ? markReports(session->reportedMarks()) : QJsonObject()},
        {u"ticket"_s, session ? jsonObject(session->ticket().values()) : QJsonObject()},
        {u"alertMemory"_s, session ? jsonObject(session->alertMemory()) : QJsonObject()},
    };
}
