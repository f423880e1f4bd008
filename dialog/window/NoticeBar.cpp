#include "dialog/window/NoticeBar.h"

#include "dialog/window/BrokenTitle.h"
#include "dialog/window/Mnemonics.h"
#include "dialog/window/NoticeLabel.h"
#include "dialog/window/NoticeSign.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/AccessibleRole.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int kLongestLine = 32;   // characters, of a button
constexpr int kMostForOffers = 40; // hundredths of the width, beside the sentence
constexpr qreal kTint = 0.16;      // of the accent in the window's colour, light or dark

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

/// Menus are made anew: their ways belong to one offer.
bool looksLike(const NoticeOffer &one, const NoticeOffer &other)
{
    return one.name == other.name && one.title == other.title && one.menu.isEmpty() &&
           other.menu.isEmpty();
}

} // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent),
      m_sign(new NoticeSign(this)),
      m_label(new NoticeLabel(this)),
      m_grid(new QGridLayout(this)),
      m_offers(new QWidget(this)),
      m_offerLine(new QHBoxLayout(m_offers))
{
    setObjectName(QStringLiteral("noticeBar"));
    giveAccessibleRole("NoticeBar", QAccessible::AlertMessage);
    m_label->setObjectName(QStringLiteral("noticeLabel"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_grid->setContentsMargins(10, 6, 10, 6);
    m_grid->setSpacing(10);
    m_grid->setColumnStretch(1, 1);
    m_grid->addWidget(m_sign, 0, 0);
    m_grid->addWidget(m_label, 0, 1);
    m_grid->addWidget(m_offers, 0, 2);
    m_offerLine->setContentsMargins(0, 0, 0, 0);
    m_offers->hide();
    clear();
}

void NoticeBar::setMostHeight(int pixels)
{
    m_label->setMostHeight(pixels);
}

void NoticeBar::tell(Kind kind, const QString &sentence, const QList<NoticeOffer> &offers)
{
    m_kind = kind;
    m_sentence = displayText(sentence);
    m_sign->setSign(lookOf(kind).mark, QColor::fromRgb(lookOf(kind).accent));
    applyColors();
    showSentence(m_sentence);
    showOffers(offers);
    announce(this);
}

void NoticeBar::clear()
{
    m_sentence = QString();
    showSentence(QString());
    showOffers({});
}

/// The room stays when there is nothing to show in it.
void NoticeBar::showSentence(const QString &sentence)
{
    m_label->showText(sentence);
    giveAccessibleName(this, sentence);
    setAutoFillBackground(!sentence.isEmpty());
    m_sign->setVisible(!sentence.isEmpty());
}

/// Most events tell what can be undone: the button that is there serves.
void NoticeBar::showOffers(const QList<NoticeOffer> &offers)
{
    const bool lookAlike = std::ranges::equal(m_offered, offers, looksLike);
    m_offered = offers;
    if (!lookAlike)
        exchangeButtons();
}

/// One of the former buttons may be in the midst of its click: until it goes it is nobody.
void NoticeBar::exchangeButtons()
{
    const auto *focused = QApplication::focusWidget();
    const bool hasFocus = focused && m_offers->isAncestorOf(focused);
    for (QPushButton *button : std::exchange(m_buttons, {})) {
        button->hide();
        button->setObjectName(QString());
        setButtonTitle(button, QString());
        button->deleteLater();
    }
    for (const NoticeOffer &offer : std::as_const(m_offered)) {
        m_buttons += newButton(offer);
        m_offerLine->addWidget(m_buttons.constLast());
        m_buttons.constLast()->show();
    }
    m_offers->setVisible(!m_offered.isEmpty());
    arrange();
    if (hasFocus && !m_buttons.isEmpty())
        m_buttons.constFirst()->setFocus(); // else it went to whatever comes next
}

void NoticeBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    arrange();
}

/// Beside the sentence where that keeps most of the width, else below it; there side by side as far
/// as they fit.
void NoticeBar::arrange()
{
    int needed = 0;
    for (const QPushButton *button : std::as_const(m_buttons))
        needed += button->sizeHint().width() + m_offerLine->spacing();
    const bool areBeside = needed * 100 <= width() * kMostForOffers;
    if (std::exchange(m_offersAreBeside, areBeside) != areBeside) {
        m_grid->removeWidget(m_offers);
        m_grid->addWidget(m_offers, areBeside ? 0 : 1, areBeside ? 2 : 1,
                          areBeside ? Qt::Alignment() : Qt::AlignRight);
    }
    m_offerLine->setDirection(needed <= contentsRect().width() ? QBoxLayout::LeftToRight
                                                               : QBoxLayout::TopToBottom);
}

/// How many lines the title of a button takes.
int NoticeBar::linesFor(const QString &title) const
{
    const int widest = kLongestLine * fontMetrics().averageCharWidth();
    return (fontMetrics().horizontalAdvance(title) + widest - 1) / widest;
}

QPushButton *NoticeBar::newButton(const NoticeOffer &offer)
{
    auto *button = new QPushButton(m_offers);
    button->setObjectName(offer.name);
    titleButton(*button, displayText(offer.title));
    button->setAutoDefault(false);
    if (offer.menu.isEmpty())
        connect(button, &QPushButton::clicked, this, [this, button] { take(button); });
    else
        button->setMenu(newMenu(offer.menu, button));
    return button;
}

/// What it offers now. It may tell something else, and so exchange the offers.
void NoticeBar::take(const QPushButton *button)
{
    const qsizetype index = m_buttons.indexOf(button);
    if (index >= 0)
        std::function<void()>(m_offered[index].take)();
}

void NoticeBar::titleButton(QPushButton &button, const QString &title)
{
    setTitleWithFreeMnemonic(button, withoutMnemonic(brokenTitle(title, linesFor(title))));
    giveAccessibleName(&button, title);
}

void NoticeBar::settleMnemonics()
{
    for (qsizetype index = 0; index < m_buttons.size(); ++index)
        titleButton(*m_buttons[index], displayText(m_offered[index].title));
}

QMenu *NoticeBar::newMenu(const QList<NoticeOffer> &offers, QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("noticeMenu"));
    for (const NoticeOffer &offer : offers)
        menu->addAction(withoutMnemonic(displayText(offer.title)), this, offer.take);
    return menu;
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
