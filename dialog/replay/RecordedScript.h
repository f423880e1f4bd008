#pragma once

#include "dialog/files/OutputFile.h"
#include "dialog/replay/JsonText.h"
#include "dialog/replay/SessionFollower.h"

#include <deque>
#include <functional>
#include <utility>

/// A script that is being written. An event's line is written once the alerts that it raised have
/// been answered: a sheet's answer comes after the event.
class RecordedScript
{
public:
    /// A fault when the file may not or cannot be written.
    Result<> open(const QString &path, const OutputTerms &terms);

    /// Tells every line, without its end, to whom it is given, in the place of a file. Where an
    /// event's alerts have not been answered the line comes later.
    void open(std::function<void(const QByteArray &line)> tell) { m_tell = std::move(tell); }

    /// Notes an event. Its answers may still be to come.
    void note(const OrderedMembers &event, const FollowedAnswers &answers);

    /// Writes every event whose alerts have been answered.
    void writeAnswered();

    /// Writes all events, those too whose alerts nobody has answered.
    void writeAll();

    /// Ends the script. A fault when not everything could be written: then nothing of it is left.
    Result<> finish();

    QString path() const { return m_path; }

    /// Whether it goes to a device or a pipe.
    bool isStream() const { return m_file.verdict() == OutputVerdict::Append; }

private:
    struct Event
    {
        OrderedMembers members;
        FollowedAnswers answers;
    };

    void write(const Event &event);

    QString m_path;
    OutputFile m_file;
    std::function<void(const QByteArray &)> m_tell; ///< null: the file is written
    std::deque<Event> m_events;
};
