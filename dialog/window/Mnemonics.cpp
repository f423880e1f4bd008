#include "dialog/window/Mnemonics.h"

#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/CaptionLabel.h"
#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>
#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <functional>
#include <optional>
#include <utility>

namespace {

QString mnemonicOf(const QString &text)
{
    for (qsizetype at = text.indexOf(u'&'); at >= 0; at = text.indexOf(u'&', at + 2))
        if (const QString letter = text.mid(at + 1, 1); letter != u"&")
            return letter.toUpper();
    return {};
}

/// A button answers it whether its text says so or a caption beside it.
QString mnemonicOf(const QAbstractButton &button)
{
    const QKeySequence keys = button.shortcut();
    const bool isMnemonic = !keys.isEmpty() && keys[0].keyboardModifiers() == Qt::AltModifier;
    return isMnemonic ? QString(QChar(keys[0].key())) : QString();
}

/// A letter in parentheses of its own looks like one that stands behind a title as its mnemonic.
bool canBeMnemonic(const QString &title, qsizetype at)
{
    const bool isApart = at > 0 && title[at - 1] == u'(' && title.mid(at + 1, 1) == u')';
    return title[at].unicode() < 0x80 && title[at].isLetter() && !isApart;
}

/// The letters of the title that are free, those that begin a word first; of a title without Latin
/// letters the whole alphabet, since one is put behind it.
QString freeLetters(const QString &title, const QString &taken)
{
    QString first;
    QString others;
    for (qsizetype at = 0; at < title.size(); ++at)
        if (canBeMnemonic(title, at))
            (at == 0 || title[at - 1].isSpace() ? first : others) += title[at].toUpper();
    QString letters = first + others;
    for (char letter = 'A'; (first + others).isEmpty() && letter <= 'Z'; ++letter)
        letters += QLatin1Char(letter);
    letters.removeIf([&](QChar letter) { return taken.contains(letter); });
    return letters;
}

/// Where a letter goes that the title does not have: before a colon at the end.
qsizetype placeBehind(const QString &title)
{
    qsizetype place = title.size();
    while (place > 0 && (title[place - 1].isSpace() || title[place - 1] == u':'))
        --place;
    return place;
}

/// The title with its mnemonic on the letter: where that begins a word, else on the first one.
QString marked(const QString &title, QChar letter)
{
    std::optional<qsizetype> place;
    bool beginsWord = false;
    for (qsizetype at = 0; at < title.size() && !beginsWord; ++at) {
        if (title[at].toUpper() != letter || !canBeMnemonic(title, at))
            continue;
        beginsWord = at == 0 || title[at - 1].isSpace();
        if (!place || beginsWord)
            place = at;
    }
    return place ? QString(title).insert(*place, u'&')
                 : QString(title).insert(placeBehind(title), QStringLiteral("(&%1)").arg(letter));
}

/// Which title has which letter. A title that finds its letters given away takes one from another
/// title that has a further one.
class Letters
{
public:
    explicit Letters(QStringList choices) : m_choices(std::move(choices)), m_given(m_choices.size())
    {
        for (qsizetype title = 0; title < m_choices.size(); ++title) {
            m_asked.clear();
            give(title);
        }
    }

    /// Null: there was none left.
    QChar of(qsizetype title) const { return m_given[title]; }

private:
    bool give(qsizetype title)
    {
        for (const QChar letter : std::as_const(m_choices[title])) {
            if (m_asked.contains(letter))
                continue;
            m_asked += letter;
            const qsizetype owner = m_given.indexOf(letter);
            if (owner >= 0 && !give(owner))
                continue;
            m_given[title] = letter;
            return true;
        }
        return false;
    }

    QStringList m_choices;
    QList<QChar> m_given;
    QString m_asked; // for the title that letters are being looked for
};

/// As it is drawn, with an ampersand before its mnemonic.
QString titleOf(const QLabel &label)
{
    const auto *caption = qobject_cast<const CaptionLabel *>(&label);
    return caption ? caption->mnemonicText() : label.text();
}

/// As the user's language sets a colon: French has a space before it.
QString withColon(const QString &caption)
{
    const qsizetype colon = caption.lastIndexOf(u':');
    if (colon < 0 || !caption.mid(colon + 1).trimmed().isEmpty())
        return caption;
    return QCoreApplication::translate("Mnemonics", "%1:").arg(caption.left(colon).trimmed()) +
           caption.mid(colon + 1);
}

enum class PagesOfTabs { Apart, InFront };

/// Whether what is on the widget counts: pages of tabs in the window do not, or the one in front
/// does with all that is in it.
bool counts(const QWidget &window, const QWidget *widget, PagesOfTabs pages)
{
    bool does = true;
    for (; widget && widget != &window; widget = widget->parentWidget())
        if (const auto *stack = qobject_cast<const QStackedWidget *>(widget->parentWidget()))
            does = pages == PagesOfTabs::InFront && stack->currentWidget() == widget;
    return does;
}

QString lettersIn(const QWidget &window, const QWidget *except, PagesOfTabs pages)
{
    const auto has = [&](const QWidget *widget) {
        const bool isExcepted = except && (widget == except || except->isAncestorOf(widget));
        return !isExcepted && counts(window, widget, pages);
    };
    QString letters;
    for (const auto *button : window.findChildren<QAbstractButton *>())
        if (const QString letter = mnemonicOf(*button); !letter.isEmpty() && has(button))
            letters += letter;
    for (const auto *label : window.findChildren<QLabel *>())
        if (label->buddy() && has(label))
            letters += mnemonicOf(titleOf(*label));
    for (const auto *tabs : window.findChildren<QTabBar *>())
        for (int index = 0; index < tabs->count(); ++index)
            letters += mnemonicOf(tabs->tabText(index));
    return letters;
}

/// A part of a panel's view that answers a letter.
struct TitledPart
{
    const QWidget *page; ///< of a stack in the view; null: it is always there
    QString title;
    std::function<void(const QString &titled)> show;
};

/// The page of a stack in the view that the part is on; null for none.
const QWidget *pageOf(const QWidget &view, const QWidget *part)
{
    for (; part && part != &view; part = part->parentWidget())
        if (qobject_cast<const QStackedWidget *>(part->parentWidget()))
            return part;
    return nullptr;
}

/// None for a part that answers no letter: a caption leads to the buttons of a matrix.
std::optional<TitledPart> titledPart(const QWidget &view, QWidget *part)
{
    const QWidget *page = pageOf(view, part);
    if (auto *caption = qobject_cast<CaptionLabel *>(part); caption && caption->buddy())
        return TitledPart{page, withColon(caption->text()),
                          [caption](const QString &titled) { caption->setMnemonic(titled); }};
    auto *disclosure = qobject_cast<DisclosureButton *>(part);
    if (disclosure && disclosure->caption())
        return TitledPart{page, withoutMnemonic(disclosure->caption()->text()),
                          [disclosure](const QString &titled) { disclosure->setMnemonic(titled); }};
    auto *button = qobject_cast<QAbstractButton *>(part);
    if (!button || qobject_cast<QRadioButton *>(part))
        return std::nullopt;
    const QString title = buttonTitle(button);
    return TitledPart{page, withoutMnemonic(title), [button, title](const QString &titled) {
                          button->setText(titled);
                          giveAccessibleName(button, title);
                      }};
}

QList<TitledPart> titledParts(const QWidget &view)
{
    QList<TitledPart> titled;
    for (auto *part : view.findChildren<QWidget *>()) {
        const auto one = part->isHidden() ? std::nullopt : titledPart(view, part);
        if (one && !one->title.isEmpty())
            titled += *one;
    }
    return titled;
}

/// Gives the letters that they got.
QString giveLetters(const QList<TitledPart> &parts, const QString &taken)
{
    QStringList choices;
    for (const TitledPart &part : parts)
        choices += freeLetters(part.title, taken);
    const Letters letters(choices);
    QString given;
    for (qsizetype index = 0; index < parts.size(); ++index) {
        const QChar letter = letters.of(index);
        parts[index].show(letter.isNull() ? parts[index].title
                                          : marked(parts[index].title, letter));
        if (!letter.isNull())
            given += letter;
    }
    return given;
}

/// Another letter for a title whose own is taken.
template <typename Titled> void settle(Titled &titled, QString &taken)
{
    const QString own = mnemonicOf(titled.text());
    if (own.isEmpty())
        return;
    if (taken.contains(own))
        titled.setText(withMnemonic(withoutMnemonic(titleOfMnemonic(titled.text())), taken));
    taken += mnemonicOf(titled.text());
}

} // namespace

QString mnemonicsIn(const QWidget &window, const QWidget *except)
{
    return lettersIn(window, except, PagesOfTabs::Apart);
}

QString mnemonicsInFront(const QWidget &window, const QWidget *except)
{
    return lettersIn(window, except, PagesOfTabs::InFront);
}

QString withMnemonic(const QString &title, const QString &taken)
{
    const QString letters = freeLetters(title, taken);
    return letters.isEmpty() ? title : marked(title, letters.front());
}

void setTitleWithMnemonic(QAbstractButton &button, const QString &title)
{
    button.setText(withMnemonic(title, mnemonicsIn(*button.window(), &button)));
}

void setTitleWithFreeMnemonic(QAbstractButton &button, const QString &title)
{
    button.setText(withMnemonic(title, mnemonicsInFront(*button.window(), &button)));
}

void giveMnemonics(QTabWidget &tabs)
{
    const QString taken = mnemonicsIn(*tabs.window());
    QStringList choices;
    for (int index = 0; index < tabs.count(); ++index)
        choices += freeLetters(tabs.tabText(index), taken);
    const Letters letters(choices);
    for (int index = 0; index < tabs.count(); ++index)
        if (!letters.of(index).isNull())
            tabs.setTabText(index, marked(tabs.tabText(index), letters.of(index)));
}

void givePanelMnemonics(QWidget &view, const QString &taken)
{
    QMap<const QWidget *, QList<TitledPart>> pages;
    for (const TitledPart &part : titledParts(view))
        pages[part.page] += part;
    const QString always = giveLetters(pages.take(nullptr), taken);
    for (const QList<TitledPart> &parts : std::as_const(pages))
        giveLetters(parts, taken + always);
}

void settleMnemonics(QWidget &page, const QString &taken)
{
    QString given = taken;
    for (auto *label : page.findChildren<QLabel *>())
        if (label->buddy())
            settle(*label, given);
    for (auto *button : page.findChildren<QAbstractButton *>())
        settle(*button, given);
}
