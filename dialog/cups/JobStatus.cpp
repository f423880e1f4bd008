#include "dialog/cups/JobStatus.h"

#include "dialog/cups/PrinterReasons.h"
#include "dialog/cups/ServerSentences.h"

#include <algorithm>
#include <array>

namespace {

QStringList strings(ipp_t *job, const char *name, ipp_tag_t tag)
{
    ipp_attribute_t *attribute = ippFindAttribute(job, name, tag);
    QStringList values;
    for (int index = 0; index < ippGetCount(attribute); ++index)
        values += QString::fromUtf8(ippGetString(attribute, index, nullptr));
    return values;
}

int number(ipp_t *job, const char *name, ipp_tag_t tag)
{
    ipp_attribute_t *attribute = ippFindAttribute(job, name, tag);
    return attribute ? ippGetInteger(attribute, 0) : 0;
}

struct PhaseRow
{
    int state;          // job-state
    const char *reason; // among job-state-reasons; null: whatever they are
    JobPhase phase;
};

// The first row that fits counts.
constexpr std::array kPhases{
    PhaseRow{IPP_JSTATE_PENDING, "printer-stopped", JobPhase::Stopped},
    PhaseRow{IPP_JSTATE_PENDING, nullptr, JobPhase::Waiting},
    PhaseRow{IPP_JSTATE_HELD, "cups-held-for-authentication", JobPhase::NeedsPassword},
    PhaseRow{IPP_JSTATE_HELD, "resources-are-not-ready", JobPhase::HeldToRetry},
    PhaseRow{IPP_JSTATE_HELD, nullptr, JobPhase::Held},
    PhaseRow{IPP_JSTATE_PROCESSING, "printer-stopped", JobPhase::Stopped},
    PhaseRow{IPP_JSTATE_PROCESSING, nullptr, JobPhase::Printing},
    PhaseRow{IPP_JSTATE_STOPPED, nullptr, JobPhase::Stopped},
    PhaseRow{IPP_JSTATE_CANCELED, nullptr, JobPhase::Cancelled},
    PhaseRow{IPP_JSTATE_ABORTED, nullptr, JobPhase::Aborted},
    PhaseRow{IPP_JSTATE_COMPLETED, "job-completed-with-errors", JobPhase::FinishedWithErrors},
    PhaseRow{IPP_JSTATE_COMPLETED, nullptr, JobPhase::Finished},
};

JobPhase phaseOf(int state, const QStringList &reasons)
{
    const auto found = std::ranges::find_if(kPhases, [&](const PhaseRow &row) {
        return row.state == state && (!row.reason || reasons.contains(QLatin1String(row.reason)));
    });
    return found == kPhases.end() ? JobPhase::Unknown : found->phase;
}

/// The printer's worst reason in words; null when it has none that stops it.
QString trouble(const QStringList &keywords)
{
    for (const QString &keyword : keywords) {
        const PrinterReason reason = printerReason(keyword);
        if (keyword != QLatin1String("none") && reason.severity == ReasonSeverity::Error)
            return reason.text;
    }
    return {};
}

/// The printer's own sentence says more than the keyword for it.
QString reasonOf(const QStringList &messages, const QString &trouble)
{
    const QString said = shownServerText(messages.value(0));
    return said.isEmpty() ? trouble : said;
}

} // namespace

bool isEnd(JobPhase phase)
{
    constexpr std::array ends{JobPhase::Finished, JobPhase::FinishedWithErrors, JobPhase::Cancelled,
                              JobPhase::Aborted, JobPhase::Unknown};
    return std::ranges::find(ends, phase) != ends.end();
}

bool isStuck(JobPhase phase)
{
    constexpr std::array stuck{JobPhase::Held, JobPhase::HeldToRetry, JobPhase::NeedsPassword,
                               JobPhase::InTrouble, JobPhase::Stopped};
    return std::ranges::find(stuck, phase) != stuck.end();
}

JobStatus statusOf(ipp_t *job)
{
    JobStatus status;
    status.phase = phaseOf(number(job, "job-state", IPP_TAG_ENUM),
                           strings(job, "job-state-reasons", IPP_TAG_KEYWORD));
    status.sheets = std::max(0, number(job, "job-media-sheets-completed", IPP_TAG_INTEGER));
    const QString troubled = trouble(strings(job, "job-printer-state-reasons", IPP_TAG_KEYWORD));
    if (status.phase == JobPhase::Printing && !troubled.isNull())
        status.phase = JobPhase::InTrouble;
    if (isStuck(status.phase) || status.phase == JobPhase::FinishedWithErrors ||
        status.phase == JobPhase::Aborted)
        status.reason = reasonOf(strings(job, "job-printer-state-message", IPP_TAG_TEXT), troubled);
    if (status.phase == JobPhase::Held)
        status.heldUntil = shownServerText(strings(job, "job-hold-until", IPP_TAG_ZERO).value(0));
    return status;
}

const QList<QByteArray> &statusAttributes()
{
    static const QList<QByteArray> names{"job-state",
                                         "job-state-reasons",
                                         "job-media-sheets-completed",
                                         "job-printer-state-message",
                                         "job-printer-state-reasons",
                                         "job-hold-until"};
    return names;
}

JobStatus withPrinter(JobStatus waiting, ipp_t *printer)
{
    if (number(printer, "printer-state", IPP_TAG_ENUM) != IPP_PSTATE_STOPPED)
        return waiting;
    waiting.phase = JobPhase::Stopped;
    waiting.reason = reasonOf(strings(printer, "printer-state-message", IPP_TAG_TEXT),
                              trouble(strings(printer, "printer-state-reasons", IPP_TAG_KEYWORD)));
    return waiting;
}

const QList<QByteArray> &printerStatusAttributes()
{
    static const QList<QByteArray> names{"printer-state", "printer-state-message",
                                         "printer-state-reasons"};
    return names;
}
