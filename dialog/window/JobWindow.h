#pragma once

#include "dialog/cups/JobSentence.h"
#include "dialog/printing/JobFollower.h"

#include <QtWidgets/QDialog>

#include <map>

class QLabel;
class QProgressBar;
class QPushButton;

/// A job after Print: where it stands, until it is at an end, and what can be done to it. Closing
/// the window lets the job go on.
class JobWindow : public QDialog
{
    Q_OBJECT

public:
    /// `server` as in JobPlace.
    JobWindow(const QString &server, JobName job, QWidget *parent = nullptr);

    /// What is told now, plain text.
    QString sentence() const;

    /// Whether nothing more will become of the job.
    bool isAtEnd() const;

private:
    QPushButton *addButton(const QString &name, const QString &title);
    void addAction(JobAction action, const QString &name, const QString &title);
    void take(const JobStatus &status);
    void tell(const QString &sentence);
    void showProgress(const JobStatus &status);
    void showActions(JobPhase phase);
    JobPhase widestPhase();

    const JobName m_job;
    QLabel *m_sentence;
    QProgressBar *m_progress;
    QWidget *m_buttons;
    std::map<JobAction, QPushButton *> m_actions;
    JobFollower m_follower;
};
