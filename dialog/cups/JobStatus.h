#pragma once

#include "dialog/cups/IppAnswer.h"

#include <QtCore/QString>

#include <array>

/// Where a job stands at its server, as people tell it.
enum class JobPhase {
    Waiting,       ///< for its turn
    Held,          ///< by somebody, or until a time
    HeldToRetry,   ///< the printer could not be reached, and will be tried again
    NeedsPassword, ///< held until somebody says who prints
    Printing,
    InTrouble, ///< printing, and the printer calls for somebody
    Stopped,   ///< it waits, since its printer is stopped
    Finished,
    FinishedWithErrors,
    Cancelled,
    Aborted, ///< the server gave it up
    Unknown, ///< the server has no record of it any more
};

inline constexpr std::array kJobPhases{
    JobPhase::Waiting,       JobPhase::Held,     JobPhase::HeldToRetry,
    JobPhase::NeedsPassword, JobPhase::Printing, JobPhase::InTrouble,
    JobPhase::Stopped,       JobPhase::Finished, JobPhase::FinishedWithErrors,
    JobPhase::Cancelled,     JobPhase::Aborted,  JobPhase::Unknown};

/// Whether nothing more will become of the job.
bool isEnd(JobPhase phase);

/// Whether the job waits for somebody: at its end it may stand for hours.
bool isStuck(JobPhase phase);

struct JobStatus
{
    JobPhase phase = JobPhase::Waiting;
    int sheets = 0;    ///< printed so far, as filters and printer count them
    QString reason;    ///< the printer's or the server's own words, one line; null: none
    QString heldUntil; ///< "indefinite", "night", "18:00:00" (UTC); null: not said

    bool operator==(const JobStatus &) const = default;
};

/// What the attributes of an answer about the job come to. Attributes of another syntax than the
/// standard gives them count as missing.
JobStatus statusOf(ipp_t *job);

/// What an answer about one job must have for statusOf(): as `requested-attributes`.
const QList<QByteArray> &statusAttributes();

/// The status of a waiting job with what its printer says: the job itself does not tell that the
/// printer was stopped before it came.
JobStatus withPrinter(JobStatus waiting, ipp_t *printer);

/// Likewise for withPrinter().
const QList<QByteArray> &printerStatusAttributes();
