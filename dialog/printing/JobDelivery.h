#pragma once

#include "dialog/cups/JobSubmission.h"
#include "dialog/files/OutputFile.h"
#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"

#include <QtCore/QString>

class EndSignals;

/// The ends of a job where there is no window. Each writes its lines on standard output and
/// standard error.

/// Sends the job and waits for the server's answer. A signal cancels a job that is not wholly sent.
ExitStatus sendJob(const JobRequest &request, EndSignals &signals);

/// Puts the job into a file, if the terms let it. A signal leaves what stood there.
ExitStatus keepJob(const QString &path, const JobRequest &request, const OutputTerms &terms,
                   EndSignals &signals);

/// Sends a job that was kept in this file, to the queue of the command line or, without one, to the
/// queue that it was made for. Its settings were checked when it was made and are sent as they are;
/// other settings on the command line are refused.
ExitStatus sendJobFile(const CommandLine &line, const Document &file, EndSignals &signals);

/// One sentence on the first option of the saved job at the path that is not sent; null when all of
/// them are. `yes` admits options that this program does not write.
QString faultOfOptions(const QString &path, const QList<JobOption> &options, bool yes);

/// The exit status for what a server answered.
ExitStatus statusOf(const ServerAnswer &answer);
