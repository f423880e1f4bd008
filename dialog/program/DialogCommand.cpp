#include "dialog/program/DialogCommand.h"

#include "dialog/cups/Passwords.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/program/NoDialogCommand.h"
#include "dialog/program/Screenshot.h"
#include "dialog/program/SentJob.h"
#include "dialog/program/SessionRecording.h"
#include "dialog/program/ToolkitMessages.h"
#include "dialog/program/Translations.h"
#include "dialog/program/WhyCommand.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/FirstSight.h"
#include "dialog/work/BackgroundCall.h"
#include "dialog/work/EndSignals.h"
#include "platform/imaging/PictureReader.h"

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

#include <cstdlib>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// The threads of calls that were given up may wait for a name server; nobody wants to.
constexpr std::chrono::milliseconds kTimeoutAtTheEnd{300};

ExitStatus runDialog(const CommandLine &line)
{
    if (const Result<> checked = checkOwnSettings(line.choices); !checked)
        return failWith(checked.fault());
    SessionRecording recording; // outlives the sessions that it follows
    DialogWindow window(line);
    if (!window.documentState())
        return failWith(window.documentState().fault());
    if (const Result<> known = checkInstance(window.controller().wantedPrinter().queue); !known)
        return failWith(known.fault());
    if (const Result<> begun = recording.begin(line, window.controller()); !begun)
        return failWith(begun.fault());
    SentJob sent;
    QObject::connect(&window, &DialogWindow::jobSent, &sent, &SentJob::take);
    const EndSignals signals([&] { // a server may be asked from here on
        window.end();
        sent.end();
    });
    window.start();
    window.show();
    QApplication::exec();
    window.closePrinter(); // is noted, too
    if (window.outcome().faultKind() == FaultKind::Request)
        return recording.finish(failWith(window.outcome().fault()));
    return recording.finish(window.outcome() ? ExitStatus::Done
                                             : statusOf(window.outcome().fault().kind));
}

// The toolkit would advise to install the program again, and abort.
[[noreturn]] void refuseToShow()
{
    installTranslations();
    std::_Exit(exitCode(
        failWith(ExitStatus::Usage,
                 QCoreApplication::translate("DialogCommand", "There is no display for the dialog; "
                                                              "--no-dialog prints without it."))));
}

/// The desktop's own picture of the program, as it is installed beside it. An icon that reads its
/// files itself loads each of the toolkit's decoders, to ask whether the file is one of theirs.
void addToWindowIcon(QLatin1String size)
{
    const QString path =
        QDir(QCoreApplication::applicationDirPath())
            .filePath(QStringLiteral(VELKARO_SHARE_FROM_BIN "/../icons/hicolor/%1/apps/"
                                                            "velkaro-print.png")
                          .arg(size));
    QIcon icon = QApplication::windowIcon();
    icon.addPixmap(QPixmap::fromImage(readPicture(path)));
    QApplication::setWindowIcon(icon);
}

/// Each pick takes some memory for its pictures and texts, and gives it back. The system would have
/// it in between, and clear it anew each time.
void keepFreedMemory()
{
#ifdef __GLIBC__
    constexpr int kKept = 1 << 20; // bytes
    mallopt(M_TRIM_THRESHOLD, kKept);
#endif
}

/// The large one is for those who switch between windows.
void showWindowIcon()
{
    addToWindowIcon(QLatin1String("48x48"));
    QTimer::singleShot(kFirstSight, qApp, [] { addToWindowIcon(QLatin1String("128x128")); });
}

ExitStatus run(const CommandLine &line)
{
    if (line.why)
        return runWhyCommand(line);
    if (line.noDialog)
        return runNoDialogCommand(line);
    return line.screenshot.isNull() ? runDialog(line) : takeScreenshot(line);
}

} // namespace

int runDialogCommand(int &argc, char **argv, const CommandLine &line)
{
    const bool showsWindow = !line.noDialog && !line.why && line.screenshot.isNull();
    // Whatever a desktop's session names: its display may be out of reach.
    if (!showsWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    giveUpInsteadOfAborting(showsWindow ? refuseToShow : nullptr);
    QApplication application(argc, argv);
    giveUpInsteadOfAborting(nullptr);
    QApplication::setApplicationName(QStringLiteral("velkaro-print"));
    installTranslations();
    QApplication::setApplicationDisplayName(
        QCoreApplication::translate("DialogWindow", "Velkaro Print"));
    if (showsWindow) {
        keepFreedMemory();
        showWindowIcon();
    }
    const ExitStatus status = run(line);
    forgetPasswords();
    ignoreEndSignals();
    waitForBackgroundThreads(kTimeoutAtTheEnd);
    return exitCode(status);
}
