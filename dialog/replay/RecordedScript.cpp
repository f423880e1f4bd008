#include "dialog/replay/RecordedScript.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QJsonObject answerReport(const FollowedAnswer &answer)
{
    QJsonObject report{{u"button"_s, answer.button}};
    if (answer.suppression)
        report.insert("suppress"_L1, answer.suppressed);
    return report;
}

} // namespace

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
    const auto isAnswered = [](const Event &event) {
        return std::ranges::all_of(
            event.answers, &FollowedAnswer::given,
            [](const auto &answer) -> const FollowedAnswer & { return *answer; });
    };
    while (!m_events.empty() && isAnswered(m_events.front())) {
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
    OrderedMembers members = event.members;
    QJsonArray answers;
    for (const auto &answer : event.answers)
        answers << answerReport(*answer);
    if (!answers.isEmpty())
        members << std::pair(u"answers"_s, QJsonValue(answers));
    if (m_tell)
        m_tell(jsonLine(members));
    else
        static_cast<void>(m_file.write(jsonLine(members) + '\n')); // told by finish() when it fails
}

Result<> RecordedScript::finish()
{
    writeAll();
    return m_file.commit();
}
