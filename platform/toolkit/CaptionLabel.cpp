#include "platform/toolkit/CaptionLabel.h"

#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

#include <algorithm>

namespace {

constexpr int kMostLength = 40; // characters of ordinary width

/// The control itself; of a group of buttons the one that is selected.
QWidget *focusWithin(QWidget *control)
{
    const auto buttons = control->findChildren<QAbstractButton *>();
    if (control->focusPolicy() != Qt::NoFocus || buttons.isEmpty())
        return control;
    const auto selected = std::ranges::find_if(buttons, &QAbstractButton::isChecked);
    return selected == buttons.end() ? buttons.front() : *selected;
}

/// As assistive technology calls what the caption is for.
QString nameOf(QString text)
{
    text = text.trimmed();
    return text.endsWith(u':') ? text.chopped(1).trimmed() : text;
}

QString withoutAmpersands(const QString &titled)
{
    QString shown;
    for (qsizetype at = 0; at < titled.size(); ++at) {
        if (titled[at] == u'&' && at + 1 < titled.size())
            ++at;
        shown += titled[at];
    }
    return shown;
}

} // namespace

CaptionLabel::CaptionLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void CaptionLabel::prepareFor(const QString &text)
{
    if (text == this->text())
        return;
    setMnemonic(QString());
    // The toolkit would take the ampersand of a label with a buddy for a mnemonic.
    if (text.contains(u'&'))
        setBuddy(nullptr);
    giveAccessibleName(this, nameOf(text));
}

void CaptionLabel::setMnemonic(const QString &titled)
{
    if (titled == m_titled)
        return;
    if (m_shortcut != 0)
        releaseShortcut(m_shortcut);
    m_titled = titled;
    m_shortcut = titled.isNull() || !buddy() ? 0 : grabShortcut(QKeySequence::mnemonic(titled));
    updateGeometry();
    update();
}

int CaptionLabel::textWidth() const
{
    return fontMetrics().horizontalAdvance(m_titled.isNull() ? text()
                                                             : withoutAmpersands(m_titled));
}

QSize CaptionLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int most = kMostLength * metrics.averageCharWidth();
    return {std::min(textWidth(), most), metrics.height()};
}

QSize CaptionLabel::minimumSizeHint() const
{
    return sizeHint();
}

QString CaptionLabel::shownText() const
{
    const QString &whole = m_titled.isNull() ? text() : m_titled;
    const int flags = m_titled.isNull() ? 0 : Qt::TextShowMnemonic;
    return textWidth() <= contentsRect().width()
               ? whole
               : fontMetrics().elidedText(whole, Qt::ElideRight, contentsRect().width(), flags);
}

QString CaptionLabel::wholeTextTip() const
{
    return textWidth() <= contentsRect().width() ? QString() : text().trimmed();
}

bool CaptionLabel::event(QEvent *event)
{
    if (event->type() == QEvent::Shortcut && buddy() &&
        static_cast<QShortcutEvent *>(event)->shortcutId() == m_shortcut) {
        focusWithin(buddy())->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    showToolTip(static_cast<QHelpEvent *>(event)->globalPos(), wholeTextTip(), this);
    return true;
}

void CaptionLabel::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    const bool underlines = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    const int letters = m_titled.isNull() ? 0
                        : underlines      ? Qt::TextShowMnemonic
                                          : Qt::TextHideMnemonic;
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), static_cast<int>(alignment()) | letters, palette(),
                         isEnabled(), shownText(), foregroundRole());
}
