#include "tests/sources/Catalogues.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtXml/QDomDocument>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

/// A message of a catalogue, as the toolkit's own reader of sources leaves it.
struct Message
{
    QString context;
    QString source;
    QString translation;
    QString state; ///< empty when it is in order, "unfinished", "vanished" or "obsolete"
};

QString textOf(const QDomElement &parent, const QString &child)
{
    return parent.firstChildElement(child).text();
}

QList<Message> messagesOf(const QString &catalogue)
{
    QFile file(catalogue);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        ADD_FAILURE() << qPrintable(catalogue) << " cannot be read";
        return {};
    }
    QList<Message> messages;
    const QDomNodeList elements = document.elementsByTagName(u"message"_s);
    for (int index = 0; index < elements.size(); ++index) {
        const QDomElement message = elements.at(index).toElement();
        const QDomElement translation = message.firstChildElement(u"translation"_s);
        messages.append({textOf(message.parentNode().toElement(), u"name"_s),
                         textOf(message, u"source"_s), translation.text(),
                         translation.attribute(u"type"_s)});
    }
    return messages;
}

/// Brings the catalogue up to the sources of the folders.
void update(const QString &catalogue, const QStringList &folders)
{
    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(QStringLiteral(VELKARO_LUPDATE),
                  QStringList{u"-silent"_s, u"-locations"_s, u"none"_s} + folders +
                      QStringList{u"-ts"_s, catalogue});
    if (!lupdate.waitForFinished() || lupdate.exitStatus() != QProcess::NormalExit ||
        lupdate.exitCode() != 0)
        ADD_FAILURE() << lupdate.errorString().toStdString() << lupdate.readAll().toStdString();
}

/// How often %1, %2, ... and "&" before a letter stand in the text, sorted.
QStringList marksOf(const QString &text)
{
    static const QRegularExpression mark(u"%[0-9]+|&&|&"_s);
    QStringList marks;
    for (const QRegularExpressionMatch &match : mark.globalMatch(text))
        marks += match.captured();
    marks.removeAll(u"&&"_s);
    marks.sort();
    return marks;
}

// One row for each way to end.
const QStringList kEndings[] = {
    {u"."_s, u"。"_s},
    {u"?"_s, u"？"_s},
    {u"…"_s},
    {u":"_s},
};

/// What the text ends with: the number of a row, or -1 for a text that is no sentence.
qsizetype endingOf(const QString &text)
{
    const auto ends = [&text](const QString &ending) { return text.endsWith(ending); };
    const auto row = std::ranges::find_if(
        kEndings, [&](const QStringList &one) { return std::ranges::any_of(one, ends); });
    return row == std::end(kEndings) ? -1 : row - std::begin(kEndings);
}

/// What is wrong with the form of a translation; null: nothing.
QString faultOfForm(const QString &english, const QString &translation)
{
    if (marksOf(english) != marksOf(translation))
        return u": has other places or mnemonics"_s;
    if (endingOf(english) != endingOf(translation))
        return u": ends otherwise"_s;
    return {};
}

} // namespace

QStringList catalogueFaults(const QString &catalogue, const QStringList &folders)
{
    const QTemporaryDir scratch;
    const QString copy = scratch.filePath(QFileInfo(catalogue).fileName());
    EXPECT_TRUE(QFile::copy(catalogue, copy)) << qPrintable(catalogue);
    update(copy, folders);
    QStringList faults;
    for (const Message &message : messagesOf(copy)) {
        const QString place = message.context + u": "_s + message.source;
        if (message.state == "vanished"_L1 || message.state == "obsolete"_L1)
            faults += place + u": is said nowhere"_s;
        else if (!message.state.isEmpty() || message.translation.isEmpty())
            faults += place + u": is not translated"_s;
        else if (const QString fault = faultOfForm(message.source, message.translation);
                 !fault.isNull())
            faults += place + fault;
    }
    return faults;
}

QStringList tableFaults(const QString &reference, const QString &table)
{
    const QList<Message> expected = messagesOf(reference);
    const QList<Message> actual = messagesOf(table);
    QStringList faults;
    for (qsizetype row = 0; row < std::max(expected.size(), actual.size()); ++row) {
        const Message english = expected.value(row);
        const Message other = actual.value(row);
        if (english.source != other.source)
            return faults << other.source + u": "_s + english.source + u" is to stand here"_s;
        const QString fault = other.translation.isEmpty()
                                  ? u": is not translated"_s
                                  : faultOfForm(english.translation, other.translation);
        if (!fault.isNull())
            faults += english.source + fault;
    }
    return faults;
}

QStringList translatedKeys(const QString &catalogue)
{
    QStringList keys;
    for (const Message &message : messagesOf(catalogue))
        if (message.state.isEmpty() && !message.translation.isEmpty())
            keys += message.source;
    return keys;
}

QStringList keysLookedUp(const QString &source)
{
    static const QRegularExpression call(uR"(\blocalized\(([^()]*)\))"_s);
    static const QRegularExpression literal(u"\"([^\"]*)\""_s);
    QStringList keys;
    for (const QRegularExpressionMatch &lookUp : call.globalMatch(source))
        for (const QRegularExpressionMatch &key : literal.globalMatch(lookUp.captured(1)))
            keys += key.captured(1);
    return keys;
}
