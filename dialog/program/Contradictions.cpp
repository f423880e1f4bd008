#include "dialog/program/Contradictions.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace {

struct Contradiction
{
    bool isThere;
    const char *sentence;
};

} // namespace

QString contradiction(const CommandLine &line)
{
    const bool records = !line.record.isNull();
    const bool replays = !line.replay.isNull();
    const bool paints = !line.screenshot.isNull();
    const bool checks = !line.checkPPD.isNull();
    const bool asksForWork = line.noDialog || !line.files.isEmpty() || replays || records ||
                             paints || !line.output.isNull();
    const Contradiction all[] = {
        {replays && records,
         QT_TRANSLATE_NOOP("CommandLine", "--replay and --record do not go together.")},
        {checks && asksForWork,
         QT_TRANSLATE_NOOP("CommandLine",
                           "--check-ppd only looks at a PPD: it prints and replays nothing.")},
        {line.forgetAlerts && (asksForWork || checks),
         QT_TRANSLATE_NOOP(
             "CommandLine",
             "--forget-alerts only has the warnings shown again: it prints nothing.")},
        {line.why && (asksForWork || checks || line.forgetAlerts),
         QT_TRANSLATE_NOOP("CommandLine",
                           "--why only tells of a setting: it prints and replays nothing.")},
        {line.json && !line.why, QT_TRANSLATE_NOOP("CommandLine", "--json is for --why.")},
        {line.noDialog && paints,
         QT_TRANSLATE_NOOP("CommandLine", "--no-dialog and --screenshot do not go together.")},
        {line.noDialog && !line.panel.isNull(),
         QT_TRANSLATE_NOOP("CommandLine", "--no-dialog and --panel do not go together.")},
        {line.noDialog && line.files.isEmpty(),
         QT_TRANSLATE_NOOP("CommandLine", "--no-dialog needs a document to print.")},
        {line.files.count(QLatin1String("-")) > 1,
         QT_TRANSLATE_NOOP("CommandLine", "Standard input, -, may be given only once.")},
        {line.yes && !line.noDialog, QT_TRANSLATE_NOOP("CommandLine", "--yes is for --no-dialog.")},
        {line.wait && (!line.noDialog || line.dryRun || !line.output.isNull()),
         QT_TRANSLATE_NOOP("CommandLine",
                           "--wait is for --no-dialog, where the job is sent to a printer.")},
        {line.each && (!line.noDialog || !line.output.isNull()),
         QT_TRANSLATE_NOOP("CommandLine",
                           "--each is for --no-dialog, where the jobs are sent to a printer.")},
        {line.timeout && !line.wait, QT_TRANSLATE_NOOP("CommandLine", "--timeout is for --wait.")},
        {line.passwordDescriptor && !line.noDialog,
         QT_TRANSLATE_NOOP("CommandLine", "--password-fd is for --no-dialog.")},
        {line.explain && !line.noDialog,
         QT_TRANSLATE_NOOP("CommandLine", "--explain is for --no-dialog.")},
        {line.dryRun && !line.noDialog,
         QT_TRANSLATE_NOOP("CommandLine", "--dry-run is for --no-dialog.")},
        {line.dryRun && records,
         QT_TRANSLATE_NOOP("CommandLine", "--dry-run and --record do not go together.")},
    };
    const auto first = std::ranges::find_if(all, &Contradiction::isThere);
    return first == std::end(all) ? QString()
                                  : QCoreApplication::translate("CommandLine", first->sentence);
}
