// Servers that are away, go away, or refuse.
#include "tests/endtoend/DialogEndToEndFixture.h"
#include "tests/endtoend/ShownTitle.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/EventLoopWatch.h"

#include <QtCore/QRegularExpression>
#include <QtNetwork/QTcpServer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <cups/ipp.h>

using namespace Qt::StringLiterals;

namespace {

TEST_F(Dialog, AServerThatIsDownAtTheStartIsSaid)
{
    const QString address = u"127.0.0.1:%1"_s.arg(freePort());
    const auto window = open(lineFor(address, u"photo"_s));
    EXPECT_EQ(window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(window->notice().sentence(),
              u"The print server %1 cannot be reached."_s.arg(address));
    EXPECT_FALSE(part<QAbstractButton>(*window, "printButton")->isEnabled());
}

TEST_F(Dialog, AServerThatGoesDownLosesNothingOfTheJob)
{
    PrintServer other;
    ASSERT_EQ(other.fault(), QString());
    ASSERT_TRUE(other.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)));
    const auto window = open(lineFor(other.address(), u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    pick(*window, "mediaTypePopup", u"Glossy"_s);
    other.stop();
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_EQ(window->notice().sentence(),
              u"Nothing was printed on photo: The print server %1 cannot be reached."_s.arg(
                  other.address()));
    EXPECT_EQ(part<PopUpButton>(*window, "mediaTypePopup")->selectedObject(), u"Glossy"_s);
    EXPECT_EQ(window->outcome().faultKind(), FaultKind::Cancelled);
}

TEST_F(Dialog, AJobThatMayHavePrintedIsSentAgainOnPurposeOnly)
{
    const ScriptedServer forgetful(
        {{"Send-Document", {readBody(), closeConnection()}, 1},
         {"Get-Job-Attributes", answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_FOUND).ended()), 1}});
    const auto window = open(lineFor(forgetful.address(), u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready)
        << window->notice().sentence().toStdString();
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_EQ(window->notice().sentence(),
              u"The print server %1 did not say whether it took the job: it may have been printed "
              "as job 7 on photo."_s.arg(forgetful.address()));
    EXPECT_EQ(window->outcome().faultKind(), FaultKind::Unsettled);
    auto *print = part<QPushButton>(*window, "printButton");
    EXPECT_EQ(shownTitle(print->text()), u"Print Again"_s);
    QTest::keyClick(window.get(), Qt::Key_Return);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready) << "Return does not print again";
    EXPECT_EQ(forgetful.requests().count(u"Create-Job"_s), 1);
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    EXPECT_EQ(forgetful.requests().count(u"Create-Job"_s), 2);
}

TEST_F(Dialog, APrinterListThatFailsIsSaidAndThePrinterStays)
{
    const ScriptedServer faulty(
        {{"CUPS-Get-Printers",
          answerWith(httpAnswer("500 Internal Server Error", "text/plain", "no"))}});
    const auto window = open(lineFor(faulty.address(), u"photo"_s));
    EXPECT_EQ(window->state(), DialogWindow::State::Ready);
    const auto *state = part<QLabel>(*window, "printerState");
    EXPECT_TRUE(QTest::qWaitFor([&] { return state->text() != u"Searching for printers…"_s; }));
    EXPECT_EQ(state->text(), u"The other printers cannot be listed"_s);
    EXPECT_EQ(part<PopUpButton>(*window, "printerPopup")->selectedObject(), u"photo"_s);
}

TEST_F(Dialog, StaysUsableWhileAServerIsSilent)
{
    QTcpServer silent; // the system accepts connections, nobody answers
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    const EventLoopWatch watch;
    const QString address = u"127.0.0.1:%1"_s.arg(silent.serverPort());
    DialogWindow window(lineFor(address, u"photo"_s));
    window.start();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(window.state(), DialogWindow::State::Searching);
    EXPECT_EQ(window.notice().sentence(), u"Asking photo about its settings…"_s);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Dialog, AServerThatComesBackIsFoundByRetrying)
{
    const int port = freePort();
    const QString address = u"127.0.0.1:%1"_s.arg(port);
    const auto window = open(lineFor(address, u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::NoPrinter);
    EXPECT_EQ(window->notice().sentence(),
              u"The print server %1 cannot be reached."_s.arg(address));
    const ScriptedServer back({}, port);
    ASSERT_EQ(back.address(), address);
    click(*window, "retryButton");
    waitWhile(*window, DialogWindow::State::Searching);
    EXPECT_EQ(window->state(), DialogWindow::State::Ready)
        << window->notice().sentence().toStdString();
    EXPECT_EQ(window->findChild<QAbstractButton *>(u"retryButton"_s), nullptr);
}

TEST_F(Dialog, AJobThatTheServerRefusedIsSentAgainByRetrying)
{
    const ScriptedServer busy(
        {{"Create-Job", answerIpp(IppBytes(IPP_STATUS_ERROR_BUSY).ended()), 1}});
    const auto window = open(lineFor(busy.address(), u"photo"_s));
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    EXPECT_TRUE(window->notice().sentence().contains(busy.address()));
    click(*window, "retryButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    EXPECT_EQ(busy.requests().count(u"Create-Job"_s), 2);
}

// --- What the user reads of a job, and what the server has of it
// ----------------------------------

struct JobTrouble
{
    const char *behaviour;
    Script script;
    const char *sentence; ///< %1: the server; empty: the dialog has closed
    int accepted;         ///< jobs that print
    QString last;         ///< the last request
};

void PrintTo(const JobTrouble &row, std::ostream *out)
{
    *out << row.behaviour;
}

class DialogInTrouble : public Dialog, public testing::WithParamInterface<JobTrouble>
{};

TEST_P(DialogInTrouble, SaysWhatBecameOfTheJobAndNeverWaits)
{
    const ScriptedServer server(GetParam().script);
    const auto window = open(lineFor(server.address(), u"photo"_s));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready);
    const EventLoopWatch watch;
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    const QString expected = QString::fromUtf8(GetParam().sentence);
    EXPECT_EQ(window->isVisible(), !expected.isEmpty());
    EXPECT_EQ(window->isVisible() ? window->notice().sentence() : QString(),
              QString(expected).replace(u"%1"_s, server.address()));
    EXPECT_EQ(window->outcome() ? 1 : 0, GetParam().accepted);
    EXPECT_EQ(server.requests().count(u"Create-Job"_s), 1);
    EXPECT_LE(server.requests().count(u"Send-Document"_s), 1);
    // The printer's condition is asked for every now and then.
    EXPECT_EQ(server.requests().filter(QRegularExpression(u"Job|Document"_s)).constLast(),
              GetParam().last);
}

const Steps kForbidden = answerWith(httpAnswer("403 Forbidden", "text/plain", "no"));
const Steps kBusy = answerWith(httpAnswer("503 Service Unavailable", "text/plain", "no"));
const Steps kIncoming =
    answerIpp(IppBytes()
                  .group(IPP_TAG_JOB)
                  .integer(IPP_TAG_ENUM, "job-state", IPP_JSTATE_HELD)
                  .attribute(IPP_TAG_KEYWORD, "job-state-reasons", "job-incoming")
                  .ended());
const QByteArray kNoise = "\n\x1b[2J\xe2\x80\xae<b>" + QByteArray(30000, 'x');

INSTANTIATE_TEST_SUITE_P(
    Table, DialogInTrouble,
    testing::Values(
        JobTrouble{"ClosedAtTheJob",
                   {{"Create-Job", {readBody(), closeConnection()}}},
                   "Nothing was printed on photo: The print server %1 closed the connection "
                   "without an answer.",
                   0,
                   u"Get-Jobs"_s},
        JobTrouble{"SilentAtTheJob",
                   {{"Create-Job", {readBody(), hold()}}},
                   "Nothing was printed on photo: The print server %1 does not answer.",
                   0,
                   u"Get-Jobs"_s},
        JobTrouble{"ForbiddenAtTheJob",
                   {{"Create-Job", kForbidden}},
                   "Nothing was printed on photo: The print server %1 does not allow this machine "
                   "to print to photo.",
                   0,
                   u"Create-Job"_s},
        JobTrouble{"ClosedBeforeTheDocument",
                   {{"Send-Document", {closeConnection()}}, {"Get-Job-Attributes", kIncoming}},
                   "Job 7 on photo was cancelled: The print server %1 closed the connection "
                   "without an answer.",
                   0,
                   u"Cancel-Job"_s},
        JobTrouble{
            "RefusedWithNoise",
            {{"Send-Document", answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_POSSIBLE)
                                             .attribute(IPP_TAG_TEXT, "status-message", kNoise)
                                             .ended())}},
            [] {
                static const QByteArray sentence =
                    "Job 7 on photo was cancelled: The print server %1 refused: [2J<b>" +
                    QByteArray(294, 'x') + "\xe2\x80\xa6";
                return sentence.constData();
            }(),
            0,
            u"Cancel-Job"_s},
        JobTrouble{"ClosedAfterTheLastByte",
                   {{"Send-Document", {readBody(), closeConnection()}}},
                   "",
                   1,
                   u"Get-Job-Attributes"_s},
        JobTrouble{
            "BusyAfterTheLastByte", {{"Send-Document", kBusy}}, "", 1, u"Get-Job-Attributes"_s}),
    CaseName());

} // namespace
