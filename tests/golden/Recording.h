#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

/// A line that the program printed about an event.
struct RecordedEvent
{
    QJsonObject line;
    QByteArray hash; ///< of the exact bytes of the line, so that order and form count as well
};

/// What a case came to. As text it holds for each event only what differs from the line before:
///
///     event 2 show 5f0c2d3e8a917b46
///       /panels/print/height 160
///       -/panels/print/selectedRow
///     exit 0
///
/// `from N` behind the hash: differs so from event N.
struct Recording
{
    QList<RecordedEvent> events;
    /// How the run ended: exit status, standard error, and the files that it left, a line each.
    QByteArrayList ending;
};

/// Takes apart what was printed, a line an event.
QList<RecordedEvent> recordedEvents(const QByteArray &output);

/// The first bytes of a hash of these, as text.
QByteArray shortHash(const QByteArray &bytes);

QByteArray textOf(const Recording &recording);
Recording recordingOfText(const QByteArray &text);

struct Difference
{
    qsizetype event = 0; ///< from 1; 0: in the ending
    QString place;       ///< a path in the event's line, or what differs besides
    QByteArray expected;
    QByteArray got;
};

/// None when both are the same to the last byte.
std::optional<Difference> firstDifference(const Recording &expected, const Recording &got);
