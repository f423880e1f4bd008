#include "dialog/cups/JobTrial.h"

#include <QtCore/QCoreApplication>

Fault endlessTrial(TrialVerdict verdict, const JobPlace &job, const Fault &why)
{
    const char *text =
        verdict == TrialVerdict::Release
            ? QT_TRANSLATE_NOOP("JobTrial", "Job %1 is held on %2 and could not be released: %3")
            : QT_TRANSLATE_NOOP("JobTrial", "Job %1 is held on %2 and could not be cancelled: %3");
    return {why.kind, QCoreApplication::translate("JobTrial", text)
                          .arg(QString::number(job.id), job.queue, why.sentence)};
}

Result<> endTrial(TrialVerdict verdict, const JobPlace &job, CallGuard &guard)
{
    const Result<> done = perform(
        verdict == TrialVerdict::Release ? JobAction::Release : JobAction::Cancel, job, guard);
    return done ? done : Result<>(endlessTrial(verdict, job, done.fault()));
}
