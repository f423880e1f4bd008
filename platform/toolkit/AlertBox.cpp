#include "platform/toolkit/AlertBox.h"

#include <QtCore/QEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

namespace {

// Names and places that the toolkit's box gives its parts.
constexpr QLatin1String kText("qt_msgbox_label");
constexpr QLatin1String kInformativeText("qt_msgbox_informativelabel");
constexpr QLatin1String kButtons("qt_msgbox_buttonbox");
constexpr int kTextColumn = 2; // beside the icon, and a space

constexpr int kLeastTextHeight = 3; // lines

} // namespace

AlertBox::AlertBox(QWidget *parent) : QMessageBox(parent) {}

bool AlertBox::event(QEvent *event)
{
    const bool isHandled = QMessageBox::event(event);
    // The toolkit's box gives itself its own size on these.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::ApplicationFontChange ||
        event->type() == QEvent::FontChange)
        fitToScreen();
    return isHandled;
}

void AlertBox::showEvent(QShowEvent *event)
{
    QMessageBox::showEvent(event);
    fitToScreen();
}

/// The box is no wider than the screen even where its buttons would have to be cut for that.
bool AlertBox::cutsButtons() const
{
    const int buttons = findChild<QDialogButtonBox *>(kButtons)->sizeHint().width();
    return QRect(0, 0, width(), 0).marginsRemoved(layout()->contentsMargins()).width() < buttons;
}

void AlertBox::fitToScreen()
{
    if (!isVisible() ||
        (!m_texts && size().boundedTo(screen()->availableSize()) == size() && !cutsButtons()))
        return;
    if (!m_texts)
        scrollTexts();
    // The toolkit's box has them in single lines again.
    for (auto *label : m_texts->findChildren<QLabel *>()) {
        label->setWordWrap(true);
        QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        label->setSizePolicy(policy);
    }
    setFixedSize(m_size);
}

/// Once: the texts, and the box below them, go into an area that is scrolled.
void AlertBox::scrollTexts()
{
    const QSize most = screen()->availableSize();
    m_size = cutsButtons() ? most : size().boundedTo(most);
    if (cutsButtons())
        findChild<QDialogButtonBox *>(kButtons)->setOrientation(Qt::Vertical);
    auto *grid = static_cast<QGridLayout *>(layout());
    auto *area = new QScrollArea(this);
    m_texts = new QWidget;
    auto *column = new QVBoxLayout(m_texts);
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget *part : {findChild<QWidget *>(kText), findChild<QWidget *>(kInformativeText),
                          static_cast<QWidget *>(checkBox())})
        if (part)
            column->addWidget(part);
    column->addStretch(1);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(m_texts);
    area->setMinimumHeight(kLeastTextHeight * fontMetrics().lineSpacing());
    grid->addWidget(area, 0, kTextColumn, 2, 1);
    grid->setRowStretch(0, 1);
}
