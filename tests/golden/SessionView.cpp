#include "tests/golden/SessionView.h"

#include <QtCore/QJsonArray>

using namespace Qt::StringLiterals;

namespace {

ShownControl shownControl(const QString &panel, const QString &name, const QJsonObject &report)
{
    ShownControl control;
    control.panel = panel;
    control.name = name;
    control.isCheck = report["kind"_L1] == "check"_L1;
    control.isUsable = report["enabled"_L1].toBool() && report["visible"_L1].toBool();
    control.isChecked = report["checked"_L1].toBool();
    for (const QJsonValue item : report["items"_L1].toArray()) {
        QStringList &choices =
            item["enabled"_L1].toBool() ? control.choices : control.blockedChoices;
        choices += item["choice"_L1].toString();
    }
    return control;
}

} // namespace

QStringList SessionView::panels() const
{
    return m_line["panels"_L1].toObject().keys();
}

QJsonObject SessionView::panel(const QString &name) const
{
    return m_line["panels"_L1].toObject()[name].toObject();
}

bool SessionView::isLoaded(const QString &name) const
{
    return panel(name).contains("controls"_L1);
}

QList<ShownControl> SessionView::controls() const
{
    QList<ShownControl> controls;
    for (const QString &name : panels()) {
        const QJsonObject reports = panel(name)["controls"_L1].toObject();
        for (auto report = reports.begin(); report != reports.end(); ++report)
            controls += shownControl(name, report.key(), report.value().toObject());
    }
    return controls;
}

bool SessionView::hasSliders() const
{
    return panel(u"color"_s)["outputBin"_L1].toObject()["VKColorEnhancement"_L1] == "ON"_L1;
}

bool SessionView::showsPicture() const
{
    return panel(u"color"_s)["picture"_L1].isObject();
}
