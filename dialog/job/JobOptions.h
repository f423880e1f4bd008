#pragma once

#include "dialog/host/AttributeRules.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/job/JobLayout.h"
#include "dialog/job/JobOption.h"
#include "dialog/job/PrintScaling.h"
#include "platform/ppd/CupsPPD.h"
#include "platform/printmanager/PMPageFormat.h"
#include "platform/printmanager/PMPrintSettings.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The settings that are the dialog's own, beside the PPD's choices.
struct HostSettings
{
    int copies = 1;
    QString pageRanges; ///< as normalizedPageRanges() gives them; empty: all
    PrintScaling scaling = PrintScaling::Automatic;
    JobLayout layout;

    bool operator==(const HostSettings &) const = default;
};

/// Everything that a job's options are made from.
struct JobValues
{
    ppd_file_t *ppd = nullptr;   ///< marked; null: a queue without a PPD
    QList<PPDMark> defaultMarks; ///< OpenedPPD::defaults
    PMPageFormat format;
    PMPrintSettings ticket;
    HostSettings settings;
    bool havePages = false; ///< all documents have pages of their own, which know their way up
    QList<JobOption> saved; ///< lpoptions of the queue that are no choices of its PPD
    /// Keywords that lpoptions name: their choices are sent even where they are the default, as
    /// every other program sends them.
    QStringList settled;
    QList<AttributeRule> attributeRules; ///< attributeRulesFor() the printer
    /// Keywords whose values travel in the ticket, under keys of the plug-in's own: their marks say
    /// nothing, and are not sent.
    QStringList inTicket;
};

/// The options of a job, or why it cannot be sent.
struct JobOptions
{
    QList<JobOption> options;
    /// One sentence for each value that must not be sent; the job is sent only when there is none.
    QStringList faults;
};

/// The job's options: saved settings that are not the PPD's, the marks that are not there by
/// default or that were saved (without those whose keyword is reserved), the dialog's own settings,
/// and every ticket value under a vendor key. A vendor key is one in reverse-domain form
/// ("com.maker.thing") that is not the platform's own.
///
/// Every job says how it is to be scaled: the server shrinks the pages of one that does not. A job
/// of several copies says how they come: the server prints those of one that does not page by page.
///
/// The paper is sent as `PageSize` alone, and is the sheet in the printer: the paper that the
/// document is mapped to, where the ticket has one, else that of the page format. Beside it `media`
/// would win in later versions of CUPS, and borderless paper would print with margins.
JobOptions jobOptions(const JobValues &values);

/// How several copies come, as the layout has it: where nobody has said it the usual way, which is
/// the one that the dialog shows. Null for one copy of which nothing was said.
QString collationOf(const HostSettings &settings);

/// Whether the key is one of a plug-in's own values of the ticket, which travel with the job.
bool isVendorTicketKey(const QString &key);

/// Whether the name is that of an option of the PPD (null: none) whose choices may be sent.
bool isChoice(ppd_file_t *ppd, const QString &name);

/// Whether the server may be given the option: a name of letters, digits, '.', '_' and '-', and a
/// value of printable characters, up to 255 bytes. Filters are handed others unquoted.
bool isSendable(const JobOption &option);

/// `PageSize` for a size that the user defined, such as "Custom.283.46x425.2" (points).
QString customPageSize(double width, double height);
