#include "platform/toolkit/PopUpButton.h"

#include "platform/toolkit/PopUpModel.h"

#include <QtGui/QWheelEvent>

namespace {

// Wide enough for an ordinary choice. A fixed length also spares measuring the text of every item,
// which is what showing a panel with many choices would spend its time on.
constexpr int kContentsLength = 12;

} // namespace

PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent), m_items(new PopUpModel(this))
{
    setModel(m_items);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kContentsLength);
    setFocusPolicy(Qt::StrongFocus);
}

void PopUpButton::setItems(const std::vector<Item> &items)
{
    m_items->setItems(items);
    setCurrentIndex(items.empty() ? -1 : 0);
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
