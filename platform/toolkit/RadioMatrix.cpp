#include "platform/toolkit/RadioMatrix.h"

#include "platform/toolkit/AccessibleRole.h"
#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

RadioMatrix::RadioMatrix(QWidget *parent)
    : QWidget(parent), m_layout(new QVBoxLayout(this)), m_group(new QButtonGroup(this))
{
    giveAccessibleRole("RadioMatrix", QAccessible::Grouping);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
}

void RadioMatrix::setNumberOfRows(int rows)
{
    while (numberOfRows() > std::max(rows, 0))
        removeRow(numberOfRows() - 1);
    while (numberOfRows() < rows)
        addRow();
}

void RadioMatrix::addRow()
{
    auto *button = new QRadioButton(this);
    m_layout->addWidget(button);
    // Without a group, a click on the only cell of a matrix would take its selection away.
    m_group->addButton(button);
    connect(button, &QRadioButton::clicked, this, &RadioMatrix::cellClicked);
    m_cells.push_back({button, QString()});
}

void RadioMatrix::removeRow(int row)
{
    if (row < 0 || row >= numberOfRows())
        return;
    delete m_cells[static_cast<std::size_t>(row)].button;
    m_cells.erase(m_cells.begin() + row);
}

void RadioMatrix::setCell(int row, const QString &title, const QString &representedObject)
{
    if (row < 0 || row >= numberOfRows())
        return;
    Cell &cell = m_cells[static_cast<std::size_t>(row)];
    setButtonTitle(cell.button, title);
    cell.representedObject = representedObject;
}

QString RadioMatrix::title(int row) const
{
    const bool there = row >= 0 && row < numberOfRows();
    return there ? buttonTitle(m_cells[static_cast<std::size_t>(row)].button) : QString();
}

QString RadioMatrix::representedObject(int row) const
{
    const bool there = row >= 0 && row < numberOfRows();
    return there ? m_cells[static_cast<std::size_t>(row)].representedObject : QString();
}

int RadioMatrix::selectedRow() const
{
    const auto checked = std::find_if(m_cells.begin(), m_cells.end(),
                                      [](const Cell &cell) { return cell.button->isChecked(); });
    return checked == m_cells.end() ? -1 : static_cast<int>(checked - m_cells.begin());
}

int RadioMatrix::rowOfRepresentedObject(const QString &object) const
{
    // A missing string equals an empty one, and that of a cell without any.
    if (object.isNull())
        return -1;
    for (int row = 0; row < numberOfRows(); ++row) {
        if (representedObject(row) == object)
            return row;
    }
    return -1;
}

bool RadioMatrix::selectObject(const QString &object)
{
    const int row = rowOfRepresentedObject(object);
    if (row < 0)
        return false;
    m_cells[static_cast<std::size_t>(row)].button->setChecked(true);
    return true;
}

void RadioMatrix::pick(int row)
{
    if (row >= 0 && row < numberOfRows())
        m_cells[static_cast<std::size_t>(row)].button->click();
}
