#include "dialog/replay/Recorder.h"

#include "dialog/host/HostSession.h"
#include "dialog/replay/RecordedEvent.h"

Result<> Recorder::open(const QString &path, const OutputTerms &terms)
{
    m_state = m_script.open(path, terms);
    return m_state;
}

Result<> Recorder::finish()
{
    if (m_state)
        m_state = m_script.finish();
    for (const auto &copy : m_copies)
        if (m_state)
            m_state = copy->commit();
    return m_state;
}

void Recorder::note(const ReplayAction &action, const FollowedAnswers &answers)
{
    m_script.note(recordedEvent(action, session()->ppd()), answers);
}

void Recorder::willClose()
{
    SessionFollower::willClose();
    m_script.writeAll();
}
