// Paints the pictures of README of the window that follows a job: real jobs on real queues, each of
// which comes to another end. In the user's language, without a display.
#include "bench/support/EndWith.h"
#include "bench/support/PictureProgram.h"
#include "dialog/cups/JobSubmission.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/window/JobWindow.h"
#include "tests/built/BuiltFiles.h"
#include "tests/printserver/PrintServer.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/JobAnswers.h"
#include "tests/scriptedserver/ScriptedServer.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestWait = 60000; // ms
constexpr int kPages = 5;

// What a backend says on standard error and what it ends with is what becomes of its job.
constexpr auto kDevice = R"(#!/bin/sh
[ $# -eq 0 ] && { echo 'direct probe "Probe" "Probe"'; exit 0; }
cat ${6:+"$6"} > /dev/null
case "$DEVICE_URI" in
*/hold) exit 3 ;;
*/empty) echo 'PAGE: 1 1' >&2; echo 'PAGE: 2 1' >&2; echo 'STATE: +media-empty-error' >&2
    echo 'ERROR: The multi-purpose tray is empty' >&2; sleep 60 ;;
*/cancel) exit 5 ;;
*/abort) echo 'ERROR: No route to the printer' >&2; exit 1 ;;
esac
exit 0
)";

struct Ending
{
    const char *device;
    const char *picture;
    JobPhase phase;
    const char *reason;              ///< null: none
    const char *heldUntil = nullptr; ///< likewise
};

constexpr std::array kEndings{
    Ending{"finish", "printed", JobPhase::Finished, nullptr},
    Ending{"hold", "held", JobPhase::Held, nullptr, "indefinite"},
    Ending{"empty", "trouble", JobPhase::InTrouble, "The multi-purpose tray is empty"},
    Ending{"cancel", "cancelled", JobPhase::Cancelled, nullptr},
    Ending{"abort", "aborted", JobPhase::Aborted, "No route to the printer"},
};

int sentJob(const PrintServer &server, const QString &queue)
{
    JobRequest request;
    request.server = server.address();
    request.queue = queue;
    request.title = u"letter.pdf"_s;
    request.documents = *openDocuments({samplePPD(u"velkaro-px-t900"_s)}); // any text
    CallGuard guard;
    const auto receipt = submitJob(request, guard);
    return receipt ? receipt->id : 0;
}

void paint(const QString &server, const JobName &job, const Ending &ending, const QString &path)
{
    const QString expected = sentenceOf(job, {ending.phase, 0, QString::fromLatin1(ending.reason),
                                              QString::fromLatin1(ending.heldUntil)});
    JobWindow window(server, job);
    window.show();
    QElapsedTimer clock;
    clock.start();
    while (window.sentence() != expected && clock.elapsed() < kLongestWait)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    if (window.sentence() != expected)
        endWith(window.sentence());
    QApplication::processEvents();
    if (!window.grab().save(path))
        endWith(path);
}

/// An end that CUPS' own server never tells of.
void paintErrors(const QString &path)
{
    const Ending ending{nullptr, nullptr, JobPhase::FinishedWithErrors, "A page is missing"};
    const ScriptedServer server(
        {{"Get-Job-Attributes",
          jobInState(IPP_JSTATE_COMPLETED, "job-completed-with-errors", ending.reason)}});
    paint(server.address(), {u"Photo"_s, kGoodJob, kPages}, ending, path);
}

} // namespace

int main(int argc, char **argv)
{
    const PictureProgram program(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    PrintServer server;
    if (!server.fault().isNull() || !server.addBackend(u"probe"_s, kDevice))
        endWith(u"there is no print server"_s);
    int number = 0;
    for (const Ending &ending : kEndings) {
        const QString queue = u"Photo"_s + (++number == 1 ? QString() : QString::number(number));
        const QString device = u"probe:/"_s + QLatin1String(ending.device);
        if (!server.lpadmin({u"-p"_s, queue, u"-E"_s, u"-v"_s, device, u"-o"_s,
                             u"printer-error-policy=abort-job"_s}))
            endWith(u"there is no queue"_s);
        paint(server.address(), {queue, sentJob(server, queue), kPages}, ending,
              program.path(u"following-"_s + QLatin1String(ending.picture)));
    }
    paintErrors(program.path(u"following-errors"_s));
    return 0;
}
