#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QAbstractButton>

#include <algorithm>

namespace {

bool isPrintableAscii(QChar character)
{
    return character.unicode() >= 0x20 && character.unicode() < 0x7F;
}

// Whatever breaks or ends a line, or rings a bell.
bool isControl(QChar character)
{
    const char16_t code = character.unicode();
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == QChar::LineSeparator ||
           code == QChar::ParagraphSeparator;
}

// Marks, embeddings, overrides and isolates: they reorder what stands around them.
bool turnsDirection(QChar character)
{
    const char16_t code = character.unicode();
    return code == 0x061C || code == 0x200E || code == 0x200F ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

} // namespace

QString displayText(const QString &text)
{
    // A printer may have thousands of texts.
    if (std::all_of(text.begin(), text.end(), isPrintableAscii))
        return text;
    QString shown = text;
    std::replace_if(shown.begin(), shown.end(), isControl, u' ');
    shown.removeIf(turnsDirection);
    return shown;
}

QString withoutMnemonic(const QString &text)
{
    return QString(text).replace(u'&', QStringLiteral("&&"));
}

QString titleOfMnemonic(const QString &text)
{
    QString title;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isBehind = text[at] == u'(' && text.mid(at + 1, 1) == u'&' &&
                              text.mid(at + 2, 1) != u'&' && text.mid(at + 3, 1) == u')';
        if (isBehind) {
            at += 3;
            continue;
        }
        if (text[at] == u'&' && ++at == text.size())
            break;
        title += text[at];
    }
    return title;
}

void setButtonTitle(QAbstractButton *button, const QString &title)
{
    if (buttonTitle(button) != title)
        button->setText(withoutMnemonic(title));
}

QString buttonTitle(const QAbstractButton *button)
{
    return titleOfMnemonic(button->text());
}
