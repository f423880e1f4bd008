#pragma once

#include "platform/Export.h"

#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <vector>

class QButtonGroup;
class QRadioButton;
class QVBoxLayout;

/// One column of radio cells, of which at most one is selected. Each cell carries a represented
/// object. Rows can be added and removed.
class VELKARO_PLATFORM_EXPORT RadioMatrix : public QWidget
{
    Q_OBJECT
    /// How many rows a view resource gives the matrix to begin with.
    Q_PROPERTY(int rows READ numberOfRows WRITE setNumberOfRows)

public:
    explicit RadioMatrix(QWidget *parent = nullptr);

    /// How many cells there are, with a title or without.
    int numberOfRows() const { return static_cast<int>(m_cells.size()); }

    /// Adds rows at the end, or removes them from there.
    void setNumberOfRows(int rows);

    /// Adds a row without a title at the end.
    void addRow();

    /// Removes a row. If it was the selected one, none is selected then.
    void removeRow(int row);

    /// Says what the cell shows and what it stands for.
    void setCell(int row, const QString &title, const QString &representedObject);

    /// What the cell shows; null for a row that is not there.
    QString title(int row) const;

    /// Null for a row that is not there or was never given one.
    QString representedObject(int row) const;

    /// -1 when none is selected.
    int selectedRow() const;

    /// The represented object of the selected cell; null when none is selected.
    QString selectedObject() const { return representedObject(selectedRow()); }

    /// Selects the first cell with the represented object. False, and no change, without one.
    bool selectObject(const QString &object);

    /// The first row with the represented object; -1 when there is none.
    int rowOfRepresentedObject(const QString &object) const;

    /// Picks the cell as a user does who clicks it.
    void pick(int row);

Q_SIGNALS:
    /// The user has clicked a cell, be it selected already or not.
    void cellClicked();

private:
    struct Cell
    {
        QRadioButton *button;
        QString representedObject;
    };

    QVBoxLayout *m_layout;
    QButtonGroup *m_group;
    std::vector<Cell> m_cells;
};
