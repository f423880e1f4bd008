#include "dialog/program/ForgetCommand.h"

#include "dialog/files/PathBytes.h"
#include "dialog/host/HiddenAlerts.h"
#include "dialog/host/PlugInLoader.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/Translations.h"
#include "platform/foundation/Bundle.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

namespace {

QStringList bundlePaths(const CommandLine &line)
{
    if (!line.plugIn.isNull())
        return {line.plugIn};
    QStringList paths;
    const QDir folder(plugInsFolder());
    for (const QString &name :
         folder.entryList({QStringLiteral("*.bundle")}, QDir::Dirs, QDir::Name))
        paths += folder.absoluteFilePath(name);
    return paths;
}

ExitStatus forgetAlerts(const CommandLine &line)
{
    for (const QString &path : bundlePaths(line)) {
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
