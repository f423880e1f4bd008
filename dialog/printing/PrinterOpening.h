#pragma once

#include "dialog/printing/PrintJob.h"
#include "dialog/work/LatestCall.h"
#include "dialog/work/Result.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <optional>

/// A printer that was found, and opened where it has a PPD: the job has it.
struct FoundPrinter
{
    /// What a person should know of it although it prints: that the session cannot be noted, that
    /// the plug-in cannot be used. A command that nobody watches stops at the first.
    QList<Fault> shortcomings;
    /// What is to be told of the settings that it starts from, a sentence each.
    QStringList notes;
    /// The first of them that the dialog has a setting for, with a value that it cannot have.
    Result<> start;
};

/// Opens a job's printer in place of the former one, whose panels must not be on screen any more,
/// and opens it once more as it was.
class PrinterOpening
{
public:
    using SessionHook = std::function<Result<>(HostSession &)>;

    /// The job must outlive it.
    explicit PrinterOpening(PrintJob &job) : m_job(job) {}

    /// Has the hook called with every session before it starts. A fault of the hook is a
    /// shortcoming of the printer.
    void addSessionHook(SessionHook hook) { m_hooks += std::move(hook); }

    /// Opens the printer that was looked for there and fetched, with the plug-in of the path (null:
    /// the one that is for it). Even after a fault the job knows the queue, as far as there is one.
    Result<FoundPrinter> take(const PrinterSource &source, FetchedPrinter &fetched,
                              const QString &plugIn);

    /// How the printer was opened that is open now; null: there is none, or it has no PPD.
    const std::shared_ptr<const PrinterOrigin> &origin() const { return m_origin; }

    /// Reads the PPD for reopen() in advance: on a thread, as it may be a large one.
    void prepareToReopen();

    /// Opens the printer once more, at once, as it was opened then.
    Result<> reopen(const std::shared_ptr<const PrinterOrigin> &origin);

private:
    OpenedPrinter open(const SessionOptions &options, std::optional<OpenedPPD> ppd,
                       const QList<JobOption> &starting, QList<Fault> &shortcomings);

    PrintJob &m_job;
    QList<SessionHook> m_hooks;
    std::shared_ptr<const PrinterOrigin> m_origin;
    std::optional<OpenedPPD> m_spare; ///< to reopen m_spareOrigin with
    std::shared_ptr<const PrinterOrigin> m_spareOrigin;
    LatestCall m_sparing;
};
