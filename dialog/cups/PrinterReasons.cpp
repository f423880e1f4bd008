#include "dialog/cups/PrinterReasons.h"

#include "dialog/cups/Destinations.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A keyword or a part of one, and the sentence for it.
struct Word
{
    QLatin1String keyword;
    const char *text;
};

// Sources of the keywords: the IANA registry of `printer-state-reasons`, and what cupsd and its
// backends set beside those.
constexpr std::array kReasons{
    Word{"alert-removal-of-binary-change-entry"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "An alert is over")},
    Word{"connecting-to-device"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Connecting")},
    Word{"cover-open"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The cover is open")},
    Word{"cups-insecure-filter"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "A filter of the server is not safe to run")},
    Word{"cups-missing-filter"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "A filter is missing on the server")},
    Word{"cups-waiting-for-job-completed"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "Waiting for the end of a job")},
    Word{"deactivated"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Deactivated")},
    Word{"deleted"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Deleted")},
    Word{"developer-empty"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The developer is used up")},
    Word{"developer-low"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The developer is low")},
    Word{"door-open"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "A door is open")},
    Word{"fuser-over-temp"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The fuser is too hot")},
    Word{"fuser-under-temp"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The fuser is too cold")},
    Word{"hibernate"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Hibernating")},
    Word{"hold-new-jobs"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "New jobs are held")},
    Word{"identify-printer-requested"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "Making itself known")},
    Word{"input-tray-missing"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "A paper tray is missing")},
    Word{"interlock-open"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "An interlock is open")},
    Word{"interpreter-resource-unavailable"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "A font or form is missing")},
    Word{"marker-supply-empty"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Ink or toner is used up")},
    Word{"marker-supply-low"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Ink or toner is low")},
    Word{"marker-supply-missing"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "An ink or toner cartridge is missing")},
    Word{"marker-waste-almost-full"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "The waste container is almost full")},
    Word{"marker-waste-full"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "The waste container is full")},
    Word{"media-empty"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Out of paper")},
    Word{"media-jam"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Paper jam")},
    Word{"media-low"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Paper is low")},
    Word{"media-needed"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Waiting for paper")},
    Word{"moving-to-paused"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Being stopped")},
    Word{"offline"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Not connected or switched off")},
    Word{"opc-life-over"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The drum is worn out")},
    Word{"opc-near-eol"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The drum is nearly worn out")},
    Word{"other"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Something is wrong")},
    Word{"output-area-almost-full"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "The output tray is almost full")},
    Word{"output-area-full"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The output tray is full")},
    Word{"output-tray-missing"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "The output tray is missing")},
    Word{"paused"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Stopped")},
    Word{"resuming"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Starting again")},
    Word{"shutdown"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Switched off")},
    Word{"spool-area-full"_L1,
         QT_TRANSLATE_NOOP("PrinterReasons", "The server has no room for jobs")},
    Word{"standby"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "On standby")},
    Word{"stopped-partly"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Stopped in part")},
    Word{"stopping"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Being stopped")},
    Word{"suspend"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Suspended")},
    Word{"testing"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Testing itself")},
    Word{"timed-out"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The printer does not answer")},
    Word{"toner-empty"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Toner is used up")},
    Word{"toner-low"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Toner is low")},
    Word{"unknown"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "The state is not known")},
    Word{"wait-for-fonts"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Waiting for fonts")},
};

// Many of the registered keywords are a part of the printer and what is the matter with it:
// "stapler-empty", "media-path-jam". The longer of two that begin alike stands first.
constexpr std::array kParts{
    Word{"bander-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Bander: %1")},
    Word{"binder-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Binder: %1")},
    Word{"cleaner-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Cleaner: %1")},
    Word{"configuration-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Configuration: %1")},
    Word{"die-cutter-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Die cutter: %1")},
    Word{"folder-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Folder: %1")},
    Word{"imprinter-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Imprinter: %1")},
    Word{"input-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Paper feed: %1")},
    Word{"inserter-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Inserter: %1")},
    Word{"interpreter-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Interpreter: %1")},
    Word{"make-envelope-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Envelope maker: %1")},
    Word{"marker-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Print head: %1")},
    Word{"media-path-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Paper path: %1")},
    Word{"output-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Output tray: %1")},
    Word{"perforater-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Perforator: %1")},
    Word{"power-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Power: %1")},
    Word{"puncher-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Hole punch: %1")},
    Word{"separation-cutter-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Cutter: %1")},
    Word{"sheet-rotator-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Sheet rotator: %1")},
    Word{"slitter-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Slitter: %1")},
    Word{"stacker-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Stacker: %1")},
    Word{"stapler-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Stapler: %1")},
    Word{"stitcher-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Stitcher: %1")},
    Word{"subunit-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "A part: %1")},
    Word{"trimmer-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Trimmer: %1")},
    Word{"wrapper-"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "Wrapper: %1")},
};

constexpr std::array kMatters{
    Word{"added"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "added")},
    Word{"almost-empty"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "almost empty")},
    Word{"almost-full"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "almost full")},
    Word{"at-limit"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "at its limit")},
    Word{"change"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "changed")},
    Word{"closed"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "closed")},
    Word{"configuration-change"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "set up anew")},
    Word{"cover-closed"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "cover closed")},
    Word{"cover-open"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "cover open")},
    Word{"empty"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "empty")},
    Word{"full"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "full")},
    Word{"interlock-closed"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "interlock closed")},
    Word{"interlock-open"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "interlock open")},
    Word{"jam"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "jammed")},
    Word{"life-almost-over"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "nearly worn out")},
    Word{"life-over"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "worn out")},
    Word{"memory-exhausted"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "out of memory")},
    Word{"missing"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "missing")},
    Word{"motor-failure"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "motor failed")},
    Word{"near-limit"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "near its limit")},
    Word{"offline"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "offline")},
    Word{"opened"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "opened")},
    Word{"over-temperature"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "too hot")},
    Word{"power-saver"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "saving power")},
    Word{"recoverable-failure"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "failed for the moment")},
    Word{"recoverable-storage"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "storage is short")},
    Word{"removed"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "removed")},
    Word{"resource-added"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "resource added")},
    Word{"resource-removed"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "resource removed")},
    Word{"thermistor-failure"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "thermistor failed")},
    Word{"timing-failure"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "timing failed")},
    Word{"turned-off"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "switched off")},
    Word{"turned-on"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "switched on")},
    Word{"under-temperature"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "too cold")},
    Word{"unrecoverable-failure"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "failed")},
    Word{"unrecoverable-storage-error"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "storage failed")},
    Word{"warming-up"_L1, QT_TRANSLATE_NOOP("PrinterReasons", "warming up")},
};

struct Suffix
{
    QLatin1String end;
    ReasonSeverity severity;
};

constexpr std::array kSuffixes{Suffix{"-report"_L1, ReasonSeverity::Report},
                               Suffix{"-warning"_L1, ReasonSeverity::Warning},
                               Suffix{"-error"_L1, ReasonSeverity::Error}};

QString translated(const char *text)
{
    return QCoreApplication::translate("PrinterReasons", text);
}

/// Null for a keyword that is not in the tables.
QString textOf(const QString &keyword)
{
    const auto *whole = std::ranges::find(kReasons, keyword, &Word::keyword);
    if (whole != kReasons.end())
        return translated(whole->text);
    const auto *part = std::ranges::find_if(
        kParts, [&](const Word &one) { return keyword.startsWith(one.keyword); });
    if (part == kParts.end())
        return {};
    const auto *matter =
        std::ranges::find(kMatters, keyword.mid(part->keyword.size()), &Word::keyword);
    return matter == kMatters.end() ? QString()
                                    : translated(part->text).arg(translated(matter->text));
}

QString withSeverity(const PrinterReason &reason)
{
    switch (reason.severity) {
    case ReasonSeverity::Report:
        return reason.text;
    case ReasonSeverity::Warning:
        return QCoreApplication::translate("PrinterReasons", "Warning: %1").arg(reason.text);
    case ReasonSeverity::Error:
        return QCoreApplication::translate("PrinterReasons", "Error: %1").arg(reason.text);
    }
    return {};
}

/// A stopped queue has this reason beside its state.
bool saysNothingNew(const QString &keyword, const Destination &printer)
{
    return printer.isStopped && printerReason(keyword).text == printerReason(u"paused"_s).text;
}

/// The worst first, those alike in the server's order.
QStringList reasonTexts(const Destination &printer)
{
    QList<PrinterReason> reasons;
    for (const QString &keyword : printer.reasons)
        if (!saysNothingNew(keyword, printer))
            reasons += printerReason(keyword);
    std::ranges::stable_sort(reasons, std::ranges::greater(), &PrinterReason::severity);
    QStringList texts;
    for (const PrinterReason &reason : reasons)
        texts += withSeverity(reason);
    return texts;
}

} // namespace

PrinterReason printerReason(const QString &keyword)
{
    const auto *suffix = std::ranges::find_if(
        kSuffixes, [&](const Suffix &one) { return keyword.endsWith(one.end); });
    const bool hasSuffix = suffix != kSuffixes.end();
    const QString text = textOf(hasSuffix ? keyword.chopped(suffix->end.size()) : keyword);
    return {hasSuffix ? suffix->severity : ReasonSeverity::Error, text.isNull() ? keyword : text};
}

bool isInTrouble(const Destination &printer)
{
    return printer.isStopped || !printer.isAccepting ||
           std::ranges::any_of(printer.reasons, [](const QString &keyword) {
               return printerReason(keyword).severity != ReasonSeverity::Report;
           });
}

QString stateText(const Destination &printer)
{
    QStringList texts;
    if (!printer.isAccepting)
        texts += QCoreApplication::translate("PrinterReasons", "Takes no jobs at present");
    if (printer.isStopped)
        texts += QCoreApplication::translate("PrinterReasons", "Stopped: jobs wait");
    else if (printer.isPrinting)
        texts += QCoreApplication::translate("PrinterReasons", "Printing");
    texts += reasonTexts(printer);
    // cupsd repeats the keyword where nobody has given a reason.
    if (!printer.stateMessage.isEmpty() &&
        !printer.reasons.contains(printer.stateMessage, Qt::CaseInsensitive))
        texts += printer.stateMessage;
    if (texts.isEmpty())
        texts += QCoreApplication::translate("PrinterReasons", "Ready");
    return texts.join(u" · "_s);
}
