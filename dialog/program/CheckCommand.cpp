#include "dialog/program/CheckCommand.h"

#include "dialog/files/PathBytes.h"
#include "dialog/host/PPDFile.h"
#include "dialog/host/PlugInLoader.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/LauncherOutput.h"
#include "dialog/program/Translations.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPPDCheck.h"
#include "platform/pde/PDEPlugIn.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

namespace {

ExitStatus reportFindings(const CommandLine &line)
{
    const Result<OpenedPPD> opened = openPPD(line.checkPPD);
    if (!opened)
        return failWith(opened.fault());
    const PlugInLoad load = loadPlugIn(line.plugIn.isNull() ? ownBundlePath() : line.plugIn);
    if (load.fault)
        return failWith(ExitStatus::PlugIn, load.fault->sentence);
    auto *check = qobject_cast<PDEPPDCheck *>(dynamic_cast<QObject *>(load.plugIn));
    if (!check)
        return failWith(
            ExitStatus::PlugIn,
            QCoreApplication::translate("CheckCommand", "The plug-in %1 cannot check a PPD.")
                .arg(shownPath(load.bundle->bundlePath())));
    for (const QString &finding : check->findingsInPPD(opened->ppd.get()))
        report(line, finding);
    return std::ferror(stdout) == 0 ? ExitStatus::Done : failWithoutOutput();
}

} // namespace

int runCheckCommand(int &argc, char **argv, const CommandLine &line)
{
    const QCoreApplication application(argc, argv);
    installTranslations();
    return exitCode(reportFindings(line));
}
