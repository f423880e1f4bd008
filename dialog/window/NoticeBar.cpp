#include "dialog/window/NoticeBar.h"

#include "dialog/window/NoticeLabel.h"
#include "dialog/window/NoticeSign.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/AccessibleRole.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

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
    : QFrame(parent),
      m_sign(new NoticeSign(this)),
      m_label(new NoticeLabel(this)),
      m_retry(newOffer(QStringLiteral("retryButton"), tr("&Retry"))),
      m_undo(newOffer(QStringLiteral("undoButton"), tr("&Undo"))),
      m_redo(newOffer(QStringLiteral("redoButton"), tr("Re&do")))
{
    setObjectName(QStringLiteral("noticeBar"));
    giveAccessibleRole("NoticeBar", QAccessible::AlertMessage);
    m_label->setObjectName(QStringLiteral("noticeLabel"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 6);
    layout->setSpacing(10);
    layout->addWidget(m_sign);
    layout->addWidget(m_label, 1);
    for (QPushButton *button : {m_retry, m_undo, m_redo})
        layout->addWidget(button);
    connect(m_retry, &QPushButton::clicked, this, &NoticeBar::retryWanted);
    connect(m_undo, &QPushButton::clicked, this, &NoticeBar::undoWanted);
    connect(m_redo, &QPushButton::clicked, this, &NoticeBar::redoWanted);
    clear();
}

QPushButton *NoticeBar::newOffer(const QString &name, const QString &title)
{
    auto *button = new QPushButton(title, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void NoticeBar::tell(Kind kind, const QString &sentence, Offer offer)
{
    m_kind = kind;
    m_sentence = displayText(sentence);
    m_sign->setSign(lookOf(kind).mark, QColor::fromRgb(lookOf(kind).accent));
    applyColors();
    showSentence(m_sentence, offer);
    announce(this);
}

void NoticeBar::clear()
{
    m_sentence = QString();
    showSentence(QString(), Offer::Nothing);
}

/// The room stays when there is nothing to show in it.
void NoticeBar::showSentence(const QString &sentence, Offer offer)
{
    setLabelText(m_label, sentence);
    giveAccessibleName(this, sentence);
    setAutoFillBackground(!sentence.isEmpty());
    m_sign->setVisible(!sentence.isEmpty());
    m_retry->setVisible(offer == Offer::Retry);
    m_undo->setVisible(offer == Offer::Undo);
    m_redo->setVisible(offer == Offer::Redo);
    update();
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
