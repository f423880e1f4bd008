#include "dialog/window/Mnemonics.h"

#include "platform/toolkit/CaptionLabel.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>
#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
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
    for (qsizetype at = title.size() - 1; at >= 0; --at)
        if (title[at].toUpper() == letter && (at == 0 || title[at - 1].isSpace()))
            place = at;
    if (!place && title.contains(letter, Qt::CaseInsensitive))
        place = title.indexOf(letter, 0, Qt::CaseInsensitive);
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

bool isOnAPageOf(const QWidget &window, const QWidget *widget)
{
    for (; widget && widget != &window; widget = widget->parentWidget())
        if (qobject_cast<const QStackedWidget *>(widget))
            return true;
    return false;
}

/// The title as it was before it got its mnemonic.
QString stripped(QString title)
{
    static const QRegularExpression behind(QStringLiteral("\\(&[A-Z]\\)"));
    static const QRegularExpression before(QStringLiteral("(?<!&)&(?!&)"));
    return title.remove(behind).remove(before);
}

/// Another letter for a title whose own is taken.
template <typename Titled> void settle(Titled &titled, QString &taken)
{
    const QString own = mnemonicOf(titled.text());
    if (own.isEmpty())
        return;
    if (taken.contains(own))
        titled.setText(withMnemonic(stripped(titled.text()), taken));
    taken += mnemonicOf(titled.text());
}

} // namespace

QString mnemonicsIn(const QWidget &window, const QWidget *except)
{
    const auto counts = [&](const QWidget *widget) {
        const bool isExcepted = except && (widget == except || except->isAncestorOf(widget));
        return !isExcepted && !isOnAPageOf(window, widget);
    };
    QString letters;
    for (const auto *button : window.findChildren<QAbstractButton *>())
        if (counts(button))
            letters += mnemonicOf(button->text());
    for (const auto *label : window.findChildren<QLabel *>())
        if (counts(label) && label->buddy())
            letters += mnemonicOf(titleOf(*label));
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

void giveCaptionMnemonics(QWidget &view, const QString &taken)
{
    QList<CaptionLabel *> captions;
    QStringList choices;
    for (auto *caption : view.findChildren<CaptionLabel *>())
        if (caption->buddy() && !caption->isHidden() && !caption->text().isEmpty()) {
            captions += caption;
            choices += freeLetters(caption->text(), taken);
        }
    const Letters letters(choices);
    for (qsizetype index = 0; index < captions.size(); ++index) {
        const QChar letter = letters.of(index);
        const QString title = withColon(captions[index]->text());
        captions[index]->setMnemonic(letter.isNull() ? title : marked(title, letter));
    }
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
