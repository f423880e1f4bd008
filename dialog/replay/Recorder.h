#pragma once

#include "dialog/replay/RecordedScript.h"
#include "dialog/replay/SessionFollower.h"

#include <QtCore/QString>

#include <memory>
#include <vector>

/// Notes real sessions as a replay script. Running the script leads to the same state.
///
/// The order of calls: open(); then for each session attach() between HostSession::open() and
/// start(); at the end finish(). The PPD is copied beside the script, so that both together can be
/// sent elsewhere. Without finish() no file is left, but for what a crash leaves.
class Recorder : public SessionFollower
{
public:
    /// A fault when the script may not or cannot be written.
    Result<> open(const QString &path, const OutputTerms &terms);

    /// Notes the session from its beginning. A fault when its PPD cannot be copied: then nothing
    /// more is noted. The session must close before finish().
    Result<> attach(HostSession &session);

    /// Ends the recording. The first fault when not all could be noted: then nothing of it is left.
    Result<> finish();

    void willClose() override;

private:
    void note(const ReplayAction &action, const FollowedAnswers &answers) override;
    void sheetAnswered() override { m_script.writeAnswered(); }
    Result<QString> copyPPD(const HostSession &session);

    RecordedScript m_script;
    Result<> m_state;                                  // the first fault
    std::vector<std::unique_ptr<OutputFile>> m_copies; // of PPDs
};
