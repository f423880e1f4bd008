#pragma once

#include "dialog/cups/QueuePPD.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/SavedOptions.h"
#include "dialog/job/SavedSettings.h"
#include "dialog/printing/StartingSettings.h"
#include "dialog/work/CallGuard.h"

#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>

/// Which printer a job is for: a queue of a server, or a PPD file alone.
struct PrinterSource
{
    QString server;  ///< null: the user's usual one
    QueueName queue; ///< a null queue: none, or not known yet
    QString ppdPath; ///< null: the queue's own
    StartingSettings start = {};
    /// What a user had settled when the queue's PPD was exchanged, in place of what the start
    /// stands for; none: it was not.
    std::optional<QList<JobOption>> kept = {};
};

/// What a server told of a queue, or what is in a PPD file.
struct FetchedPrinter
{
    QueueName queue; ///< null: a PPD file alone, or no queue is known
    QString ppdPath; ///< of the file that was opened; null: there is none
    QueuePPD kept;   ///< keeps the file of a queue there
    /// None: the queue has no PPD. A fault: there is no queue, or it cannot be asked, or the PPD
    /// cannot be used.
    Result<std::optional<OpenedPPD>> opened;
};

/// Opens the source's PPD file. Without one it asks the server for the PPD of the source's queue,
/// or of the server's default queue when none is named, and opens that. Blocks: call it in a
/// BackgroundCall.
FetchedPrinter fetchPrinter(const PrinterSource &source, CallGuard &guard);

/// What stands for it when a BackgroundCall has given it up.
FetchedPrinter givenUpPrinter(const PrinterSource &source);

/// The queue that was asked for on the command line, else the user's usual one.
QueueName wantedQueue(const QString &queue, const QString &instance);

/// The settings that the source starts from; `ppd` is the source's (null: it has none). A source
/// that starts from what was used last says afterwards whether there is any.
QList<JobOption> startingOptions(PrinterSource &source, ppd_file_t *ppd);

/// A fault when there are more of them than kMostSavedOptions: every part of the program would be
/// at them for long.
Result<> checkCount(const QList<JobOption> &starting, const PrinterSource &source);

/// The settings as they are typed, one behind the other; of many the first few.
QString typedSettings(const QList<JobOption> &settings);

/// Sentences on the settings that the source started from and the printer does not have, and on
/// files of saved settings that cannot be read.
QStringList notesOnStart(const PrinterSource &source, const QList<JobOption> &missing);

/// A printer as it was opened, to open it once more in the same way without asking for it again.
struct PrinterOrigin
{
    PrinterSource source;
    SessionOptions options; ///< with the alerts that the user had suppressed then
    QueuePPD kept;          ///< keeps the file of a queue there
    std::shared_ptr<const FileDescriptor> ppd; ///< OpenedPPD::text
    QList<JobOption> starting;
};

/// A printer whose panels run.
struct OpenedPrinter
{
    std::unique_ptr<HostSession> session; ///< null: no PPD that can be used
    SavedSettings saved;
};

/// Opens a session on the PPD, marks what the user has saved for the queue, and starts the panels.
/// Without a PPD there is no session. `beforeStart` may follow the session from its beginning. On
/// the main thread.
OpenedPrinter openPrinter(const SessionOptions &options, std::optional<OpenedPPD> ppd,
                          const QList<JobOption> &saved,
                          const std::function<void(HostSession &)> &beforeStart = {});
