#include "tests/golden/Recording.h"

#include "tests/golden/JsonDelta.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kHashLength = 16; // digits
constexpr auto kEventWord = "event";
constexpr auto kFromWord = "from";

/// What the line of an event is told against: the state of another line, and nothing of its own.
QJsonObject foundation(const QJsonObject &state, qsizetype number, const QString &kind)
{
    QJsonObject line{{u"panels"_s, QJsonObject()},
                     {u"marks"_s, QJsonObject()},
                     {u"ticket"_s, QJsonObject()},
                     {u"alertMemory"_s, QJsonObject()}};
    for (const QString &name : line.keys())
        if (state.contains(name))
            line[name] = state[name];
    for (const QString &list : {u"calls"_s, u"notifications"_s, u"alerts"_s})
        line[list] = QJsonArray();
    line["result"_L1] = QJsonValue::Null;
    line["event"_L1] = number;
    line["do"_L1] = kind;
    return line;
}

QByteArray changeLines(const QJsonObject &from, const QJsonObject &to)
{
    QByteArray lines;
    for (const JsonChange &change : changesBetween(from, to)) {
        const QByteArray path = change.path.toUtf8();
        lines += change.value.isUndefined() ? "  -" + path
                                            : "  " + path + ' ' + compactText(change.value);
        lines += '\n';
    }
    return lines;
}

JsonChange changeOfLine(const QByteArray &line)
{
    const QByteArray content = line.trimmed();
    if (content.startsWith('-'))
        return {QString::fromUtf8(content.mid(1)), QJsonValue(QJsonValue::Undefined)};
    const qsizetype space = content.indexOf(' ');
    return {QString::fromUtf8(content.left(space)), valueOfText(content.mid(space + 1))};
}

struct Told
{
    qsizetype from; ///< the event before it that it is told against; 0: none
    QByteArray changes;
};

/// A session that is opened anew is nearer to an earlier line than to the one before.
Told shortestTold(const QList<RecordedEvent> &events, qsizetype index)
{
    const QJsonObject &line = events[index].line;
    const QString kind = line["do"_L1].toString();
    const auto told = [&](qsizetype from) {
        const QJsonObject state = from == 0 ? QJsonObject() : events[from - 1].line;
        return Told{from, changeLines(foundation(state, index + 1, kind), line)};
    };
    Told best = told(index);
    const bool startsAnew = kind == "open"_L1 || kind == "show"_L1;
    for (qsizetype from = index - 1; startsAnew && from >= 1; --from) {
        Told other = told(from);
        if (other.changes.size() < best.changes.size())
            best = other;
    }
    return best;
}

/// The event that one with this header is told against: "event NUMBER KIND HASH [from NUMBER]".
qsizetype originOf(const QByteArrayList &words, qsizetype before)
{
    const bool named = words.size() >= 6 && words[4] == kFromWord;
    return named ? words[5].toLongLong() : before;
}

RecordedEvent eventOf(const QByteArray &header, const QList<JsonChange> &changes,
                      const QList<RecordedEvent> &before)
{
    const QByteArrayList words = header.split(' ');
    const qsizetype from = originOf(words, before.size());
    const QJsonObject state = before.value(from - 1).line;
    const QJsonObject base =
        foundation(state, before.size() + 1, QString::fromUtf8(words.value(2)));
    return {withChanges(base, changes).toObject(), words.value(3)};
}

std::optional<Difference> differenceOf(const RecordedEvent &expected, const RecordedEvent &got,
                                       qsizetype number)
{
    const QList<JsonChange> there = changesBetween(expected.line, got.line);
    const QList<JsonChange> back = changesBetween(got.line, expected.line);
    if (!there.isEmpty())
        return Difference{number, there[0].path, compactText(back[0].value),
                          compactText(there[0].value)};
    if (expected.hash != got.hash)
        return Difference{number, u"the order or form of the line"_s, expected.hash, got.hash};
    return std::nullopt;
}

QByteArray eventText(const Recording &recording, qsizetype index)
{
    return index < recording.events.size() ? compactText(recording.events[index].line["do"_L1])
                                           : QByteArray("no such event");
}

} // namespace

QByteArray shortHash(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().left(kHashLength);
}

QList<RecordedEvent> recordedEvents(const QByteArray &output)
{
    QList<RecordedEvent> events;
    for (const QByteArray &line : output.split('\n')) {
        if (!line.isEmpty())
            events += {QJsonDocument::fromJson(line).object(), shortHash(line)};
    }
    return events;
}

QByteArray textOf(const Recording &recording)
{
    QByteArray text;
    for (qsizetype index = 0; index < recording.events.size(); ++index) {
        const RecordedEvent &event = recording.events[index];
        const Told told = shortestTold(recording.events, index);
        text += QByteArrayList{kEventWord, QByteArray::number(index + 1),
                               event.line["do"_L1].toString().toUtf8(), event.hash}
                    .join(' ');
        if (told.from != index)
            text += QByteArray(" ") + kFromWord + ' ' + QByteArray::number(told.from);
        text += '\n' + told.changes;
    }
    for (const QByteArray &line : recording.ending)
        text += line + '\n';
    return text;
}

Recording recordingOfText(const QByteArray &text)
{
    Recording recording;
    const QByteArrayList lines = text.split('\n');
    for (qsizetype index = 0; index < lines.size();) {
        const QByteArray &header = lines[index++];
        QList<JsonChange> changes;
        while (index < lines.size() && lines[index].startsWith("  "))
            changes += changeOfLine(lines[index++]);
        if (header.startsWith(QByteArray(kEventWord) + ' '))
            recording.events += eventOf(header, changes, recording.events);
        else if (!header.isEmpty())
            recording.ending += header;
    }
    return recording;
}

std::optional<Difference> firstDifference(const Recording &expected, const Recording &got)
{
    const qsizetype events = std::max(expected.events.size(), got.events.size());
    for (qsizetype index = 0; index < events; ++index) {
        if (index >= expected.events.size() || index >= got.events.size())
            return Difference{index + 1, u"the event"_s, eventText(expected, index),
                              eventText(got, index) + " (" + got.ending.join("; ") + ')'};
        if (auto difference = differenceOf(expected.events[index], got.events[index], index + 1))
            return difference;
    }
    for (qsizetype index = 0; index < std::max(expected.ending.size(), got.ending.size()); ++index)
        if (expected.ending.value(index) != got.ending.value(index))
            return Difference{0, u"the ending"_s, expected.ending.value(index),
                              got.ending.value(index)};
    return std::nullopt;
}
