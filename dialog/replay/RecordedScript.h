#pragma once

#include "dialog/files/OutputFile.h"
#include "dialog/replay/JsonText.h"
#include "dialog/replay/SessionFollower.h"

#include <deque>

/// A script that is being written. An event's line is written once the alerts that it raised have
/// been answered: a sheet's answer comes after the event.
class RecordedScript
{
public:
    /// A fault when the file may not or cannot be written.
    Result<> open(const QString &path, const OutputTerms &terms);

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
    std::deque<Event> m_events;
};
