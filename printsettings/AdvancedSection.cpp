#include "printsettings/AdvancedSection.h"

#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/ViewConnections.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStackedWidget>

using namespace Qt::StringLiterals;

void AdvancedSection::connect(ViewConnections &connections)
{
    connections.outlet(u"optionLabel"_s, optionLabel);
    connections.outlet(u"advancedTabView"_s, advancedTabView);
    connections.outlet(u"advancedTableView"_s, advancedTableView);
}

QList<QWidget *> AdvancedSection::parts(QWidget *disclosureButton) const
{
    return {optionLabel, disclosureButton, advancedTabView, advancedTableView};
}

bool AdvancedSection::start()
{
    if (advancedTableView)
        arrayController = std::make_unique<AdvancedOptionList>(*advancedTableView, advancedTabView);
    return arrayController != nullptr;
}

void AdvancedSection::add(const PDEPanelInspection::Row &row)
{
    if (arrayController)
        arrayController->add(row);
}

void AdvancedSection::finish(const QString &title)
{
    if (arrayController)
        arrayController->selectRow(0);
    if (optionLabel)
        setLabelText(optionLabel, title);
    if (advancedTableView)
        giveAccessibleName(advancedTableView, title);
}

void AdvancedSection::fitColumn(const QList<QWidget *> &parts)
{
    if (arrayController && parts.contains(advancedTableView))
        arrayController->fitColumn();
}

PDEPanelInspection::Rows AdvancedSection::rows() const
{
    if (!arrayController)
        return {};
    return {arrayController->rows(), arrayController->selectedRow()};
}
