#include "printsettings/AdvancedOptionList.h"

#include <QtCore/QtMath>
#include <QtGui/QFontMetricsF>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStackedWidget>

#include <algorithm>

namespace {

constexpr int kRowId = Qt::UserRole;
constexpr double kColumnMargin = 12.0; // points beside the widest label

QString idOf(const QListWidgetItem *item)
{
    return item ? item->data(kRowId).toString() : QString();
}

void showPage(QStackedWidget &pages, const QString &id)
{
    if (QWidget *page = pages.findChild<QWidget *>(id, Qt::FindDirectChildrenOnly))
        pages.setCurrentWidget(page);
}

} // namespace

AdvancedOptionList::AdvancedOptionList(QListWidget &list, QStackedWidget *pages) : m_list(&list)
{
    if (!pages)
        return;
    QObject::connect(&list, &QListWidget::currentItemChanged, pages,
                     [pages](const QListWidgetItem *item) { showPage(*pages, idOf(item)); });
}

void AdvancedOptionList::add(const PDEPanelInspection::Row &row)
{
    if (!m_list)
        return;
    auto *item = new QListWidgetItem(row.label);
    item->setData(kRowId, row.id);
    m_list->addItem(item);
}

void AdvancedOptionList::selectRow(int row)
{
    if (m_list)
        m_list->setCurrentRow(row);
}

std::vector<PDEPanelInspection::Row> AdvancedOptionList::rows() const
{
    std::vector<PDEPanelInspection::Row> rows;
    for (int index = 0; m_list && index < m_list->count(); ++index) {
        const QListWidgetItem *item = m_list->item(index);
        rows.push_back({item->text(), idOf(item)});
    }
    return rows;
}

QString AdvancedOptionList::selectedRow() const
{
    return m_list ? idOf(m_list->currentItem()) : QString();
}

double AdvancedOptionList::widestLabel() const
{
    const QFontMetricsF metrics(m_list->font());
    double widest = 0;
    for (const PDEPanelInspection::Row &row : rows())
        widest = std::max(widest, metrics.horizontalAdvance(row.label));
    return widest;
}

void AdvancedOptionList::fitColumn()
{
    if (!m_list)
        return;
    const double widest = widestLabel();
    if (widest <= m_list->contentsRect().width()) {
        m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        return;
    }
    for (int index = 0; index < m_list->count(); ++index) {
        QListWidgetItem *item = m_list->item(index);
        const int height = m_list->sizeHintForRow(index);
        item->setSizeHint(QSize(qCeil(widest + kColumnMargin), height));
    }
}
