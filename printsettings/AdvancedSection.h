#pragma once

#include "printsettings/AdvancedOptionList.h"

#include <QtCore/QList>

#include <memory>

class QLabel;
class ViewConnections;

/// The view's parts of the advanced options: title, list, and the pages of the list's rows. A view
/// without a list has no section.
class AdvancedSection
{
public:
    /// Makes the parts outlets. Must outlive the connections.
    void connect(ViewConnections &connections);

    /// The parts, with the disclosure button in its place; null for those that the view lacks.
    QList<QWidget *> parts(QWidget *disclosureButton) const;

    /// Starts an empty list. False where the view has none: rows that are added are passed over.
    bool start();
    void add(const PDEPanelInspection::Row &row);

    /// Titles the section and its list, and selects the first row.
    void finish(const QString &title);

    /// Makes the list's column wide enough, if the list is one of the parts.
    void fitColumn(const QList<QWidget *> &parts);

    PDEPanelInspection::Rows rows() const;

private:
    QLabel *optionLabel = nullptr;
    QStackedWidget *advancedTabView = nullptr; ///< its pages bear the ids of the list's rows
    QListWidget *advancedTableView = nullptr;
    std::unique_ptr<AdvancedOptionList> arrayController; ///< null without a list
};
