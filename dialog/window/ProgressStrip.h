#pragma once

#include "dialog/job/JobProgress.h"

#include <QtWidgets/QProgressBar>

#include <memory>

/// Shows how far a job has come on its way. Hidden before a moment has passed, and after the end.
class ProgressStrip : public QProgressBar
{
    Q_OBJECT

public:
    explicit ProgressStrip(QWidget *parent = nullptr);

    /// Follows the job, whose documents have so many bytes, until end().
    void follow(const std::shared_ptr<const JobProgress> &progress, qint64 bytes);
    void end();

    /// Narrower than the toolkit's: the buttons beside it come first.
    QSize minimumSizeHint() const override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    std::shared_ptr<const JobProgress> m_progress; // null: nothing is on its way
    qint64 m_bytes = 0;
    int m_timer = 0;
};
