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

void setButtonTitle(QAbstractButton *button, const QString &title)
{
    const QString text = withoutMnemonic(title);
    if (button->text() != text)
        button->setText(text);
}

QString buttonTitle(const QAbstractButton *button)
{
    return button->text().replace(QStringLiteral("&&"), QStringLiteral("&"));
}
