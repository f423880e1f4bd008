#include "dialog/cups/JobReadBack.h"

#include "dialog/cups/OptionAttribute.h"
#include "dialog/cups/ServerRequests.h"
#include "dialog/job/UnsaidSettings.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

namespace {

ipp_attribute_t *find(ipp_t *job, const QByteArray &name)
{
    return ippFindAttribute(job, name.constData(), IPP_TAG_ZERO);
}

/// What is said of a job in this state; null when there is nothing to say.
const char *stateNote(ipp_t *job, const QList<JobOption> &sent)
{
    ipp_attribute_t *state = find(job, "job-state");
    ipp_attribute_t *reasons = find(job, "job-state-reasons");
    switch (state ? ippGetInteger(state, 0) : 0) {
    case IPP_JSTATE_PENDING:
        return reasons && ippContainsString(reasons, "printer-stopped")
                   ? QT_TRANSLATE_NOOP("JobReadBack", "The printer is stopped; job %1 waits (%2).")
                   : nullptr;
    case IPP_JSTATE_HELD:
        return isToBeHeld(sent) ? nullptr
                                : QT_TRANSLATE_NOOP("JobReadBack", "The server holds job %1 (%2).");
    case IPP_JSTATE_CANCELED:
        return QT_TRANSLATE_NOOP("JobReadBack", "The server has cancelled job %1 (%2).");
    case IPP_JSTATE_ABORTED:
        return QT_TRANSLATE_NOOP("JobReadBack", "The server has aborted job %1 (%2).");
    case IPP_JSTATE_COMPLETED:
        return reasons && ippContainsString(reasons, "job-completed-with-errors")
                   ? QT_TRANSLATE_NOOP("JobReadBack",
                                       "The server has ended job %1 with errors (%2).")
                   : nullptr;
    default:
        return nullptr;
    }
}

QString difference(ipp_t *job, const JobOption &option)
{
    ipp_attribute_t *attribute = find(job, option.name.toUtf8());
    if (!attribute)
        return QCoreApplication::translate("JobReadBack", "The server dropped the setting %1=%2.")
            .arg(option.name, option.value);
    const QString kept = attributeText(attribute);
    if (kept == option.value)
        return {};
    return QCoreApplication::translate("JobReadBack", "The server changed the setting %1 from %2 "
                                                      "to %3.")
        .arg(option.name, option.value, shownServerText(kept));
}

/// What the server has added to the job, and the job has not been shown with.
QStringList additions(ipp_t *job, const QList<JobOption> &sent)
{
    QList<JobOption> kept;
    for (ipp_attribute_t *one = ippFirstAttribute(job); one; one = ippNextAttribute(job))
        if (ippGetGroupTag(one) == IPP_TAG_JOB && ippGetName(one))
            kept += JobOption{QString::fromUtf8(ippGetName(one)), attributeText(one)};
    const QueueInfluence influence = influenceOf(kept, sent);
    QStringList notes;
    for (const JobOption &option : influence.settled)
        notes +=
            QCoreApplication::translate("JobReadBack",
                                        "The server set %1 to %2, where %3 was shown.")
                .arg(option.name, shownServerText(optionValue(kept, option.name)), option.value);
    for (const JobOption &option : influence.unsettled)
        notes += QCoreApplication::translate("JobReadBack",
                                             "The server set %1 to %2, which was not shown.")
                     .arg(displayText(option.name), shownServerText(option.value));
    return notes;
}

} // namespace

bool isToBeHeld(const QList<JobOption> &sent)
{
    const QString hold = optionValue(sent, QStringLiteral("job-hold-until"));
    return !hold.isEmpty() && hold != QLatin1String("no-hold");
}

QStringList differences(ipp_t *job, int jobId, const QList<JobOption> &sent)
{
    QStringList notes;
    if (const char *note = stateNote(job, sent))
        notes += QCoreApplication::translate("JobReadBack", note)
                     .arg(QString::number(jobId),
                          shownServerText(attributeText(find(job, "job-state-reasons"))));
    for (const JobOption &option : sent) {
        if (isOfSubscription(option)) // no attribute of the job
            continue;
        const QString note = difference(job, option);
        if (!note.isNull())
            notes += note;
    }
    return notes + additions(job, sent);
}

QStringList readJobBack(ServerConnection &connection, const QString &queue, int jobId,
                        const QList<JobOption> &sent)
{
    const IppHandle job = connection.request(jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, queue, jobId),
                                             queueResource(queue), kTimeoutsPerReadBack);
    if (job)
        return connection.succeeded() ? differences(job.get(), jobId, sent) : QStringList();
    return {QCoreApplication::translate("JobReadBack",
                                        "Whether the server keeps all settings of "
                                        "job %1 is not known: its account of the job "
                                        "cannot be read.")
                .arg(jobId)};
}
