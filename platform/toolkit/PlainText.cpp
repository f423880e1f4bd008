#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QAbstractButton>

namespace {

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
    QString shown;
    shown.reserve(text.size());
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            shown += u' ';
        else if (!turnsDirection(character))
            shown += character;
    }
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
