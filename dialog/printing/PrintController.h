#pragma once

#include "dialog/cups/Destinations.h"
#include "dialog/cups/JobSubmission.h"
#include "dialog/cups/JobTrial.h"
#include "dialog/cups/PrinterCondition.h"
#include "dialog/files/OutputFile.h"
#include "dialog/printing/PageCounter.h"
#include "dialog/printing/PanelVeto.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/PrintWishes.h"
#include "dialog/printing/PrinterChoice.h"
#include "dialog/printing/PrinterOpening.h"
#include "dialog/printing/StandardSettings.h"
#include "dialog/work/LatestCall.h"
#include "dialog/work/Result.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <optional>

struct NamedWishes;

/// A job as it is to go out.
struct FinishedJob
{
    JobRequest request;
    /// What a person has to agree to before it goes, one sentence each: a choice that would not be
    /// printed as it was made or shown, a paper that does not go with the other settings.
    QStringList doubts;
};

/// The road of a job, under a window and without one: from what was wished to a job that is sent,
/// or written into a file. It has no widgets and asks nobody: what only a user can answer is asked
/// by whoever drives it.
///
/// The order of calls:
///   1. openDocuments(), and readPipes() for those among them that are pipes;
///   2. findPrinter(), again for another printer;
///   3. makeRequestedSettings();
///   4. finish(), which asks the panels, and then, where nobody objects to its doubts, send() or
///      write(); again after a fault.
///
/// What takes its time comes back at once and tells its outcome to `then`, exactly once, from the
/// event loop of the main thread, where all of this is called; to nobody when the controller has
/// gone, or the same was begun anew. Send and find never overlap.
class PrintController : public QObject
{
public:
    template <typename Value> using Then = std::function<void(Result<Value>)>;
    using SessionHook = PrinterOpening::SessionHook;

    explicit PrintController(PrintWishes wishes, QObject *parent = nullptr);

    const PrintWishes &wishes() const { return m_wishes; }
    PrintJob &job() { return m_job; }
    const PrintJob &job() const { return m_job; }

    /// Has the hook called with every session before it starts, to follow it from its beginning. A
    /// fault of the hook is a shortcoming of the printer.
    void addSessionHook(SessionHook hook) { m_opening.addSessionHook(std::move(hook)); }

    /// The documents of the job from now on, when all can be opened. Waits for nothing.
    Result<> openDocuments(const QStringList &paths);

    /// Reads the job's documents that are pipes to their ends; the job has the whole ones then. At
    /// once when there are none.
    void readPipes(Then<std::monostate> then);

    /// The printer that was wished for. Where none was, the user's usual one, as `lp` has it.
    PrinterSource wantedPrinter() const;

    /// Whether the wishes leave open which printer it is.
    bool mayChoosePrinter() const;

    /// The printer to begin with, out of the wished server's list, where the wishes leave it open.
    Result<PrinterChoice> choosePrinter(const QList<Destination> &listed) const;

    /// Finds and opens the printer in place of the former one, whose panels must not be on screen
    /// any more. Even after a fault the job knows the queue, as far as there is one.
    void findPrinter(const PrinterSource &source, Then<FoundPrinter> then);

    /// How the printer was opened that is open now; null: there is none, or it has no PPD.
    const std::shared_ptr<const PrinterOrigin> &origin() const { return m_opening.origin(); }

    /// Reads the PPD for reopen() in advance: on a thread, as it may be a large one.
    void prepareToReopen() { m_opening.prepareToReopen(); }

    /// Opens the printer once more, at once, as it was opened then, in place of the present one,
    /// whose panels must not be on screen any more. Alerts may be suppressed as they were then:
    /// not for the user to keep (TransientDefaults).
    Result<> reopen(const std::shared_ptr<const PrinterOrigin> &origin)
    {
        return m_opening.reopen(origin);
    }

    /// Lists the printers of the wished server. Somebody who waits for them may be asked who he is.
    enum class Asking { Nobody, Somebody };
    void listPrinters(Asking asking, Then<QList<Destination>> then);

    /// Counts the pages of the job's documents, none of which is a pipe any more.
    void countPages(PageCounter::Then then) { m_pages.count(m_job.documents(), std::move(then)); }

    /// Asks for the cover pages that the job's queue offers.
    void listCoverPages(Then<QStringList> then);

    /// Asks how the printer of the job's queue is.
    void askCondition(Then<PrinterCondition> then);

    /// Looks whether the queue has another PPD by now than the one that is open. Never tells where
    /// that is not the queue's.
    void lookForExchange(Then<bool> then);

    /// The wished settings by the names of the printer, as they were made.
    NamedWishes namedWishes() const;

    /// Makes the wished settings (makeSettings()).
    Result<>
    makeRequestedSettings(const std::function<void(const RequestedChoice &)> &madeOne = {});

    /// Those of the wished settings that the job has not, though the printer has them.
    QList<RequestedChoice> lostSettings() const;

    /// Opens the printer once more and makes the wished settings but those: what they had brought
    /// with them before they were lost goes with them.
    Result<> makeAgainWithout(const QList<RequestedChoice> &lost);

    /// What has become of the saved settings that the printer started from and that no wish is for:
    /// a sentence for each that the job has not, or would not have if it had been wished for, too.
    QStringList yieldedSettings();

    /// Asks the panels whether the job may be printed, and makes the job as it is to go out. After
    /// a veto the sentence is null when the panel has told the user why by itself.
    Result<FinishedJob> finish();

    /// The job as it is to go out, as one for each of its documents: with the title and the scaling
    /// that it has alone. After finish().
    QList<JobRequest> oneForEach();

    /// Sends a job. What is gone out of it is in the progress.
    std::shared_ptr<JobProgress> send(const JobRequest &request, Then<JobReceipt> then);

    /// Looks at all that send() looks at before there is a job.
    void rehearse(const JobRequest &request, Then<std::monostate> then);

    /// Ends the wait of a job that was sent and is on trial.
    void endTrial(const JobPlace &job, TrialVerdict verdict, Then<std::monostate> then);

    /// Writes a job into a file. Gives what is to be told of it, one sentence each.
    std::shared_ptr<JobProgress> write(const QString &path, const JobRequest &request,
                                       const OutputTerms &terms, Then<QStringList> then);

    /// The terms of the wishes for writing a job's file.
    OutputTerms outputTerms() const;

    /// Asks what is going on to stop: its outcome still arrives.
    void cancel();

    /// Waits for the documents' ends no longer.
    void stopReading() { m_reading.stop(); }

    /// Releases the panels.
    void closePrinter() { m_job.closePrinter(); }

private:
    std::optional<QueuePPD> shownPPD() const;
    NamedWishes nameWishes(const ChoiceNarrowing &narrowed) const;
    Result<> makeOffered(const Result<> &made,
                         const std::function<void(const RequestedChoice &)> &madeOne);

    const PrintWishes m_wishes;
    UnsavedPanels m_unsaved; // outlives the session that it follows
    PrintJob m_job;
    PrinterOpening m_opening;
    std::optional<NamedWishes> m_named; ///< as they were made on the printer; none: not yet
    PageCounter m_pages;
    LatestCall m_call;    ///< finding, sending or writing
    LatestCall m_reading; ///< of documents that are pipes
    LatestCall m_listing;
    LatestCall m_covers;
    LatestCall m_asking;    ///< for the printer's condition
    LatestCall m_comparing; ///< of PPDs
};
