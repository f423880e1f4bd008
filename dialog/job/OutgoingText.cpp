#include "dialog/job/OutgoingText.h"

#include "platform/toolkit/PlainText.h"

#include <QtCore/QTextBoundaryFinder>

namespace {

/// Half of a surrogate pair, which a file name that is no UTF-8 may leave behind, has no encoding.
QString withoutHalves(QString text)
{
    for (qsizetype index = 0; index < text.size(); ++index) {
        const bool isPair = text[index].isHighSurrogate() && index + 1 < text.size() &&
                            text[index + 1].isLowSurrogate();
        if (isPair)
            ++index;
        else if (text[index].isSurrogate())
            text[index] = QChar::ReplacementCharacter;
    }
    return text;
}

/// The longest beginning that fits: between characters as people see them, or, where the first one
/// alone is too long, between those that they are made of.
QString cut(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    if (bytes.size() <= kLongestOutgoingText)
        return text;
    qsizetype end = kLongestOutgoingText;
    while ((bytes[end] & 0xC0) == 0x80) // inside a character
        --end;
    const QString fitting = QString::fromUtf8(bytes.first(end));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(fitting.size());
    const qsizetype seen = finder.isAtBoundary() ? fitting.size() : finder.toPreviousBoundary();
    return seen > 0 ? text.first(seen) : fitting;
}

} // namespace

QByteArray outgoingText(const QString &text, const char *neutral)
{
    // Spaces at the ends may be all that is left of control characters.
    const QString line = withoutHalves(displayText(text)).trimmed();
    const QString shortened = cut(line).trimmed();
    return shortened.isEmpty() ? QByteArray(neutral) : shortened.toUtf8();
}

QByteArray outgoingTitle(const QString &title)
{
    return outgoingText(title, "Untitled");
}

QByteArray outgoingDocumentName(const QString &name)
{
    const QString plain = name.section(u'/', -1);
    const bool isFolder = plain == QLatin1String(".") || plain == QLatin1String("..");
    return outgoingText(isFolder ? QString() : plain, "document");
}
