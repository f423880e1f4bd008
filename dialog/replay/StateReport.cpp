#include "dialog/replay/StateReport.h"

#include "dialog/host/controls/PanelParts.h"
#include "dialog/replay/ControlReport.h"
#include "platform/foundation/ObservableDictionary.h"
#include "platform/toolkit/ImageView.h"

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

QJsonObject panelReport(const PDEPanel &panel, const PDEPanelInspection &inspection)
{
    const QWidget *view = inspection.inspectedView();
    const auto keys = panel.supportedPPDOptionKeys();
    QJsonObject report{
        {u"flags"_s, inspection.inspectedFlags()},
        {u"paperName"_s, textOrNull(inspection.inspectedPaperName())},
        {u"keys"_s, keys ? QJsonValue(QJsonArray::fromStringList(*keys)) : QJsonValue()},
        {u"outputBin"_s, jsonObject(inspection.inspectedOutputBin())},
        {u"effectContent"_s, effectContentReport(inspection.inspectedEffectContent())},
        {u"height"_s, view ? QJsonValue(view->height()) : QJsonValue()},
        {u"labels"_s, labelReports(inspection)},
    };
    if (view)
        report.insert("controls"_L1, controlReports(inspection));
    if (const auto rows = inspection.inspectedRows()) {
        report.insert("rows"_L1, rowReports(*rows));
        report.insert("selectedRow"_L1, textOrNull(rows->selectedRow));
    }
    if (inspection.inspectedHasPicture())
        report.insert("picture"_L1, pictureReport(inspection.inspectedPicture()));
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
    for (const HostPanel &panel : session.panels()) {
        if (panel.inspection)
            reports.insert(panel.name, panelReport(*panel.panel, *panel.inspection));
    }
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
