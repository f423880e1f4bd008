#include "platform/toolkit/PopUpButton.h"

#include "platform/toolkit/PopUpModel.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionComboBox>

#include <utility>

namespace {

constexpr int kContentsLength = 12; // characters: wide enough for an ordinary choice

} // namespace

PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent), m_items(new PopUpModel(this))
{
    setModel(m_items);
    setFocusPolicy(Qt::StrongFocus);
}

// A combo box measures the text of every item, which would be most of the time that a panel with
// many choices takes to show. With its own policy for a fixed length it creates the drop-down list
// at once.
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
    m_items->setItems(items);
    setCurrentIndex(items.empty() ? -1 : 0);
}

void PopUpButton::setPictures(PictureOf pictureOf)
{
    m_items->setPictures(std::move(pictureOf));
}

void PopUpButton::setDetails(TextOf detailOf)
{
    m_items->setDetails(std::move(detailOf));
}

void PopUpButton::refreshDetails()
{
    m_items->refreshDetails();
}

bool PopUpButton::hasItems(const std::vector<Item> &items) const
{
    return m_items->hasItems(items);
}

int PopUpButton::indexOfRepresentedObject(const QString &object) const
{
    return m_items->rowOfObject(object);
}

int PopUpButton::indexOfTitle(const QString &title) const
{
    return m_items->rowOfTitle(title);
}

QString PopUpButton::representedObject(int index) const
{
    return m_items->representedObject(index);
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
    return m_items->isEnabled(index);
}

void PopUpButton::setItemEnabled(int index, bool enabled)
{
    m_items->setEnabled(index, enabled);
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
