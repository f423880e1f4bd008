#include "dialog/window/NoticeBar.h"

#include "dialog/window/NoticeSign.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

#include <array>

namespace {

constexpr qreal kTint = 0.16; // of the accent in the window's colour, light or dark

struct Look
{
    NoticeSign::Mark mark;
    QRgb accent;
};

// Indexed by NoticeBar::Kind.
constexpr std::array kLooks{Look{NoticeSign::Mark::LetterI, 0xff3478c8},
                            Look{NoticeSign::Mark::Exclamation, 0xffe0a000},
                            Look{NoticeSign::Mark::Cross, 0xffd03030}};

const Look &lookOf(NoticeBar::Kind kind)
{
    return kLooks[static_cast<std::size_t>(kind)];
}

QColor mixed(const QColor &base, const QColor &accent, qreal share)
{
    const auto mix = [share](int from, int to) {
        return static_cast<int>(from + (to - from) * share);
    };
    return QColor(mix(base.red(), accent.red()), mix(base.green(), accent.green()),
                  mix(base.blue(), accent.blue()));
}

} // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent), m_sign(new NoticeSign(this)), m_label(newPlainLabel(QString(), this))
{
    setObjectName(QStringLiteral("noticeBar"));
    setAutoFillBackground(true);
    m_label->setObjectName(QStringLiteral("noticeLabel"));
    m_label->setWordWrap(true);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 6);
    layout->setSpacing(10);
    layout->addWidget(m_sign, 0, Qt::AlignTop);
    layout->addWidget(m_label, 1);
    hide();
}

void NoticeBar::tell(Kind kind, const QString &sentence)
{
    m_kind = kind;
    m_sentence = displayText(sentence);
    setLabelText(m_label, m_sentence);
    giveAccessibleName(this, m_sentence);
    m_sign->setSign(lookOf(kind).mark, QColor::fromRgb(lookOf(kind).accent));
    applyColors();
    show();
}

void NoticeBar::clear()
{
    m_sentence = QString();
    hide();
}

void NoticeBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange && !m_sentence.isNull())
        applyColors();
}

void NoticeBar::applyColors()
{
    QPalette colors = parentWidget() ? parentWidget()->palette() : QPalette();
    colors.setColor(QPalette::Window, mixed(colors.color(QPalette::Window),
                                            QColor::fromRgb(lookOf(m_kind).accent), kTint));
    setPalette(colors);
}
