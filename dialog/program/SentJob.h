#pragma once

#include "dialog/cups/JobSentence.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

class JobWindow;

/// What is shown of a job after the dialog has sent it and gone: a window that follows it, where
/// the user wants one. When that is closed before the job is at its end, a process of its own
/// follows the job on (startFollowing()).
class SentJob : public QObject
{
public:
    SentJob();
    ~SentJob() override;

    /// The dialog has sent the job. `server` as in JobPlace.
    void take(const QString &server, const JobName &job);

    /// A signal ends the program: nothing is followed any more.
    void end();

private:
    void leave(const QString &server, const JobName &job);

    std::unique_ptr<JobWindow> m_window;
    bool m_isEnding = false;
};
