#include "dialog/window/Mnemonics.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

QString mnemonicOf(const QString &text)
{
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? QString() : QString(QChar(keys[0].key()));
}

bool isLatin(QChar letter)
{
    return letter.unicode() < 0x80 && letter.isLetter();
}

/// The letters of the title that are free, those that begin a word first; of a title without Latin
/// letters the whole alphabet, since one is put behind it.
QString freeLetters(const QString &title, const QString &taken)
{
    QString first;
    QString others;
    for (qsizetype at = 0; at < title.size(); ++at)
        if (isLatin(title[at]))
            (at == 0 || title[at - 1].isSpace() ? first : others) += title[at].toUpper();
    QString letters = first + others;
    for (char letter = 'A'; (first + others).isEmpty() && letter <= 'Z'; ++letter)
        letters += QLatin1Char(letter);
    letters.removeIf([&](QChar letter) { return taken.contains(letter); });
    return letters;
}

/// The title with its mnemonic on the letter: where that begins a word, else on the first one.
QString marked(const QString &title, QChar letter)
{
    std::optional<qsizetype> place;
    for (qsizetype at = title.size() - 1; at >= 0; --at)
        if (title[at].toUpper() == letter && (at == 0 || title[at - 1].isSpace()))
            place = at;
    if (!place && title.contains(letter, Qt::CaseInsensitive))
        place = title.indexOf(letter, 0, Qt::CaseInsensitive);
    return place ? QString(title).insert(*place, u'&')
                 : title + QStringLiteral("(&%1)").arg(letter);
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

} // namespace

QString mnemonicsIn(const QWidget &window, const QWidget *except)
{
    const auto counts = [except](const QWidget *widget) {
        return !except || (widget != except && !except->isAncestorOf(widget));
    };
    QString letters;
    for (const auto *button : window.findChildren<QAbstractButton *>())
        if (counts(button))
            letters += mnemonicOf(button->text());
    for (const auto *label : window.findChildren<QLabel *>())
        if (counts(label) && label->buddy())
            letters += mnemonicOf(label->text());
    for (const auto *tabs : window.findChildren<QTabBar *>())
        for (int index = 0; index < tabs->count(); ++index)
            letters += mnemonicOf(tabs->tabText(index));
    return letters;
}

QString withMnemonic(const QString &title, const QString &taken)
{
    const QString letters = freeLetters(title, taken);
    return letters.isEmpty() ? title : marked(title, letters.front());
}

void setTitleWithMnemonic(QAbstractButton &button, const QString &title)
{
    const QString taken = mnemonicsIn(*button.window(), &button);
    button.setText(withMnemonic(title, taken));
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
