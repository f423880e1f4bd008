#include "dialog/replay/RecordedScript.h"

#include "dialog/replay/RecordedEvent.h"

#include <utility>

Result<> RecordedScript::open(const QString &path, const OutputTerms &terms)
{
    m_path = path;
    // A recording is read after a crash, too.
    return m_file.open(path, terms, OutputFile::Appears::AtOnce);
}

void RecordedScript::note(const OrderedMembers &event, const FollowedAnswers &answers)
{
    m_events.push_back({event, answers});
    writeAnswered();
}

void RecordedScript::writeAnswered()
{
    while (!m_events.empty() && areGiven(m_events.front().answers)) {
        write(m_events.front());
        m_events.pop_front();
    }
}

void RecordedScript::writeAll()
{
    for (const Event &event : std::exchange(m_events, {}))
        write(event);
}

void RecordedScript::write(const Event &event)
{
    static_cast<void>( // told by finish() when it fails
        m_file.write(scriptLine(event.members, event.answers) + '\n'));
}

Result<> RecordedScript::finish()
{
    writeAll();
    return m_file.commit();
}
