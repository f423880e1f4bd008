#pragma once

#include "platform/pde/PDEPanelInspection.h"

#include <QtCore/QPointer>

#include <vector>

class QListWidget;
class QStackedWidget;

/// The controller of the list of advanced options: it keeps the rows in the list widget and brings
/// up the page of the selected row. A page belongs to the row whose id is the page's object name; a
/// row without a page leaves the page that is shown.
///
/// Adding a row selects nothing.
class AdvancedOptionList
{
public:
    /// Neither is owned; without `pages` only the rows are kept.
    AdvancedOptionList(QListWidget &list, QStackedWidget *pages);

    void add(const PDEPanelInspection::Row &row);
    void selectRow(int row);

    std::vector<PDEPanelInspection::Row> rows() const;

    /// The id of the selected row; null when none is selected.
    QString selectedRow() const;

    /// Makes the column wide enough for the widest label. When it fits already, the scroll bars
    /// stay out of sight until they are needed.
    void fitColumn();

private:
    double widestLabel() const;

    QPointer<QListWidget> m_list;
};
