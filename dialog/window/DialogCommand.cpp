#include "dialog/window/DialogCommand.h"

#include "dialog/commandline/ExitStatus.h"
#include "dialog/cups/DocumentFile.h"
#include "dialog/cups/ServerCall.h"
#include "dialog/job/CommandOutput.h"
#include "dialog/job/NoDialogCommand.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/Screenshot.h"
#include "dialog/window/Translations.h"

#include <QtWidgets/QApplication>

#include <algorithm>

using enum ExitStatus;

namespace {

// The threads of calls that were given up may wait for a name server; nobody wants to.
constexpr std::chrono::milliseconds kPatienceAtTheEnd{300};

ExitStatus runDialog(const CommandLine &line)
{
    const QString error = openDocuments(line.files).error;
    if (!error.isNull())
        return failWith(Document, error);
    DialogWindow window(line);
    if (!window.beginRecording())
        return failWith(Output, window.recordingError());
    window.start();
    window.show();
    QApplication::exec();
    return window.exitStatus();
}

bool hasDisplay()
{
    const auto names = {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"};
    return std::ranges::any_of(names,
                               [](const char *name) { return !qEnvironmentVariableIsEmpty(name); });
}

/// The toolkit would abort, and advise to install the program again.
int refuseToShow(int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    installTranslations();
    return exitCode(failWith(
        Usage, QCoreApplication::translate("DialogCommand", "There is no display for the dialog; "
                                                            "--no-dialog prints without it.")));
}

ExitStatus run(const CommandLine &line)
{
    if (line.noDialog)
        return runNoDialogCommand(line);
    return line.screenshot.isNull() ? runDialog(line) : takeScreenshot(line);
}

} // namespace

int runDialogCommand(int &argc, char **argv, const CommandLine &line)
{
    const bool showsWindow = !line.noDialog && line.screenshot.isNull();
    if (showsWindow && !hasDisplay())
        return refuseToShow(argc, argv);
    // Whatever a desktop's session names: its display may be out of reach.
    if (!showsWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("velkaro-print"));
    installTranslations();
    QApplication::setApplicationDisplayName(
        QCoreApplication::translate("DialogWindow", "Velkaro Print"));
    const ExitStatus status = run(line);
    waitForServerThreads(kPatienceAtTheEnd);
    return exitCode(status);
}
