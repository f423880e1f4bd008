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

AdvancedOptionList::AdvancedOptionList(QListWidget &list, QStackedWidget *pages) : list_(&list)
{
    if (!pages)
        return;
    QObject::connect(&list, &QListWidget::currentItemChanged, pages,
                     [pages](const QListWidgetItem *item) { showPage(*pages, idOf(item)); });
}

void AdvancedOptionList::add(const PDEPanelInspection::Row &row)
{
    if (!list_)
        return;
    auto *item = new QListWidgetItem(row.label);
    item->setData(kRowId, row.id);
    list_->addItem(item);
}

void AdvancedOptionList::selectRow(int row)
{
    if (list_)
        list_->setCurrentRow(row);
}

std::vector<PDEPanelInspection::Row> AdvancedOptionList::rows() const
{
    std::vector<PDEPanelInspection::Row> rows;
    for (int index = 0; list_ && index < list_->count(); ++index) {
        const QListWidgetItem *item = list_->item(index);
        rows.push_back({item->text(), idOf(item)});
    }
    return rows;
}

QString AdvancedOptionList::selectedRow() const
{
    return list_ ? idOf(list_->currentItem()) : QString();
}

double AdvancedOptionList::widestLabel() const
{
    const QFontMetricsF metrics(list_->font());
    double widest = 0;
    for (const PDEPanelInspection::Row &row : rows())
        widest = std::max(widest, metrics.horizontalAdvance(row.label));
    return widest;
}

void AdvancedOptionList::fitColumn()
{
    if (!list_)
        return;
    const double widest = widestLabel();
    if (widest <= list_->contentsRect().width()) {
        list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        list_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        return;
    }
    for (int index = 0; index < list_->count(); ++index) {
        QListWidgetItem *item = list_->item(index);
        const int height = list_->sizeHintForRow(index);
        item->setSizeHint(QSize(qCeil(widest + kColumnMargin), height));
    }
}
