#include "dialog/program/ForgetCommand.h"

#include "dialog/files/PathBytes.h"
#include "dialog/host/HiddenAlerts.h"
#include "dialog/host/PlugInLoader.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/Translations.h"
#include "platform/foundation/Bundle.h"

#include <QtCore/QCoreApplication>

namespace {

ExitStatus forgetAlerts(const CommandLine &line)
{
    const QStringList paths =
        line.plugIn.isNull() ? bundlesIn(plugInsFolder()) : QStringList{line.plugIn};
    for (const QString &path : paths) {
        const auto bundle = Bundle::open(path);
        if (bundle->bundleIdentifier().isNull() && !line.plugIn.isNull())
            return failWith(ExitStatus::PlugIn,
                            QCoreApplication::translate("ForgetCommand", "%1 is no plug-in.")
                                .arg(shownPath(path)));
        const QList<HiddenAlert> hidden = hiddenAlerts(*bundle);
        if (hidden.isEmpty())
            continue;
        if (!showAgain(*bundle, hidden))
            return failWith(ExitStatus::Output,
                            QCoreApplication::translate("ForgetCommand",
                                                        "The user's settings cannot be written."));
        for (const HiddenAlert &alert : hidden)
            report(line, QCoreApplication::translate("ForgetCommand", "Shown again: %1")
                             .arg(alert.sentence));
    }
    return ExitStatus::Done;
}

} // namespace

int runForgetCommand(int &argc, char **argv, const CommandLine &line)
{
    const QCoreApplication application(argc, argv);
    installTranslations();
    return exitCode(forgetAlerts(line));
}
