#include "platform/toolkit/PopUpButton.h"

#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PopUpModel.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionComboBox>

#include <algorithm>
#include <utility>

namespace {

constexpr int kContentsLength = 12;     // characters: wide enough for an ordinary choice
constexpr int kLongestTitle = 60;       // what is longer is cut
constexpr std::size_t kMostTitles = 16; // that are measured
constexpr qsizetype kMostWidths = 64;   // that are remembered
constexpr int kAroundTitle = 2;         // pixels that styles take from it
constexpr int kPictureSpacing = 4;      // pixels, as the toolkit has them

} // namespace

PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent), m_items(new PopUpModel(this))
{
    setModel(m_items);
    setFocusPolicy(Qt::StrongFocus);
}

// A combo box measures the text of every item, which would be most of the time that a panel with
// many choices takes to show: here it is those that look longest. With its own policy for a fixed
// length it creates the drop-down list at once.
QSize PopUpButton::sizeHint() const
{
    return sizeFor(wantedLength());
}

QSize PopUpButton::minimumSizeHint() const
{
    return sizeFor(std::min(wantedLength(), kContentsLength));
}

int PopUpButton::wantedLength() const
{
    return minimumContentsLength() > 0 ? minimumContentsLength() : kContentsLength;
}

QSize PopUpButton::sizeFor(int length) const
{
    const QFontMetrics metrics = fontMetrics();
    const int letter = metrics.horizontalAdvance(u'X');
    const int titles = std::min(widthOfTitles() + kAroundTitle, kLongestTitle * letter);
    const QSize contents(std::max(length * letter, titles), metrics.height() + 2);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

int PopUpButton::widthOfTitles() const
{
    if (m_widthOfTitles >= 0)
        return m_widthOfTitles;
    m_widthOfTitles = 0;
    for (const QString &title : m_items->longestTitles(kMostTitles))
        m_widthOfTitles = std::max(m_widthOfTitles, widthOf(title));
    if (m_hasPictures)
        m_widthOfTitles += iconSize().width() + kPictureSpacing;
    return m_widthOfTitles;
}

/// Lists come and go with the same titles.
int PopUpButton::widthOf(const QString &title) const
{
    const auto known = m_widths.constFind(title);
    if (known != m_widths.cend())
        return *known;
    if (m_widths.size() >= kMostWidths)
        m_widths.clear();
    return *m_widths.insert(title, fontMetrics().horizontalAdvance(title));
}

void PopUpButton::setItems(const std::vector<Item> &items)
{
    m_items->setItems(items);
    setCurrentIndex(items.empty() ? -1 : 0);
    const int before = std::exchange(m_widthOfTitles, -1);
    if (before >= 0 && widthOfTitles() != before)
        updateGeometry();
}

void PopUpButton::setPictures(PictureOf pictureOf)
{
    m_items->setPictures(std::move(pictureOf));
    m_hasPictures = true;
    m_widthOfTitles = -1;
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

bool PopUpButton::isChoiceCut() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int picture = m_hasPictures ? iconSize().width() + kPictureSpacing : 0;
    return fontMetrics().horizontalAdvance(currentText()) + picture > room.width();
}

bool PopUpButton::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isChoiceCut())
        return QComboBox::event(event);
    showToolTip(static_cast<QHelpEvent *>(event)->globalPos(), currentText(), this);
    return true;
}

void PopUpButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        m_widths.clear();
        m_widthOfTitles = -1;
    }
    QComboBox::changeEvent(event);
}

void PopUpButton::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
