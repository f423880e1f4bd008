#include "platform/toolkit/PopUpButton.h"

#include <QtGui/QStandardItemModel>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionComboBox>

namespace {

constexpr int kRepresentedObject = Qt::UserRole;
constexpr int kContentsLength = 12; // characters: wide enough for an ordinary choice

QStandardItemModel *modelOf(const PopUpButton *button)
{
    return static_cast<QStandardItemModel *>(button->model());
}

QStandardItem *newItem(const PopUpButton::Item &item)
{
    auto *row = new QStandardItem(item.title);
    row->setData(item.representedObject, kRepresentedObject);
    if (!item.image.isNull())
        row->setIcon(item.image);
    return row;
}

} // namespace

PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

// A combo box would measure the text of every item, which is what showing a panel with many choices
// would spend its time on; its own policy for a fixed length makes the list that opens, at once.
QSize PopUpButton::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int length = minimumContentsLength() > 0 ? minimumContentsLength() : kContentsLength;
    const QSize contents(length * metrics.horizontalAdvance(u'X'), metrics.height() + 2);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

QSize PopUpButton::minimumSizeHint() const
{
    return sizeHint();
}

void PopUpButton::setItems(const std::vector<Item> &items)
{
    clear();
    QList<QStandardItem *> rows;
    rows.reserve(static_cast<qsizetype>(items.size()));
    for (const Item &item : items)
        rows << newItem(item);
    modelOf(this)->invisibleRootItem()->appendRows(rows);
    setCurrentIndex(items.empty() ? -1 : 0);
}

int PopUpButton::indexOfRepresentedObject(const QString &object) const
{
    // A missing string equals an empty one, and that of a cell without any.
    if (object.isNull())
        return -1;
    for (int index = 0; index < count(); ++index) {
        if (representedObject(index) == object)
            return index;
    }
    return -1;
}

int PopUpButton::indexOfTitle(const QString &title) const
{
    for (int index = 0; index < count(); ++index) {
        if (itemText(index) == title)
            return index;
    }
    return -1;
}

QString PopUpButton::representedObject(int index) const
{
    return itemData(index, kRepresentedObject).toString();
}

bool PopUpButton::selectObject(const QString &object)
{
    const int index = indexOfRepresentedObject(object);
    if (index < 0)
        return false;
    setCurrentIndex(index);
    return true;
}

bool PopUpButton::isItemEnabled(int index) const
{
    const QStandardItem *item = modelOf(this)->item(index);
    return item && item->isEnabled();
}

void PopUpButton::setItemEnabled(int index, bool enabled)
{
    QStandardItem *item = modelOf(this)->item(index);
    if (item && item->isEnabled() != enabled)
        item->setEnabled(enabled);
}

void PopUpButton::pick(int index)
{
    setCurrentIndex(index);
    Q_EMIT activated(index);
}

void PopUpButton::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
