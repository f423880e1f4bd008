// Queues that stand for other queues.
#include "tests/endtoend/DialogEndToEndFixture.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <cups/ipp.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A browsing daemon's queue has a device that hands its jobs on to one of several printers.
constexpr auto kImplicitBackend = R"(#!/bin/sh
[ $# -eq 0 ] && { echo 'network implicitclass "Unknown" "Implicit"'; exit 0; }
exec cat ${6:+"$6"} > "$(dirname "$0")/../../out/implicit"
)";

struct StandIn
{
    const char *queue;
    QStringList outputs; ///< its jobs are printed in one of these
    QString told;        ///< of the printer; null: nothing
};

const auto kDifferentModels =
    u"The jobs of this queue go to printers of different models: raw (Local Raw Printer), photo-a "
    "(Velkaro PX-T900, 1.0), small (Velkaro PX-330C, 1.0). What is set for one of them may come "
    "out differently on another."_s;

class QueueOfQueues : public Dialog, public testing::WithParamInterface<StandIn>
{
protected:
    static void SetUpTestSuite()
    {
        PrintServerFixture::SetUpTestSuite();
        const QString large = samplePPD(u"velkaro-px-t900"_s);
        ASSERT_TRUE(server().addQueue(u"raw"_s, {}));
        ASSERT_TRUE(server().addQueue(u"photo-a"_s, large));
        ASSERT_TRUE(server().addQueue(u"photo-b"_s, large));
        ASSERT_TRUE(server().addQueue(u"small"_s, samplePPD(u"velkaro-px-330c"_s)));
        ASSERT_TRUE(server().addBackend(u"implicitclass"_s, kImplicitBackend));
        ASSERT_TRUE(server().lpadmin({u"-p"_s, u"implicit"_s, u"-E"_s, u"-v"_s,
                                      u"implicitclass://implicit/"_s, u"-P"_s, large}));
        addClass(u"pair"_s, {u"photo-a"_s, u"photo-b"_s});
        addClass(u"mixed"_s, {u"raw"_s, u"photo-a"_s, u"small"_s});
        ASSERT_TRUE(server().command(u"cupsdisable"_s, {u"raw"_s})); // where its jobs would go
        ASSERT_TRUE(server().command(u"cupsdisable"_s, {u"small"_s}));
    }

    static void addClass(const QString &name, const QStringList &members)
    {
        for (const QString &member : members)
            ASSERT_TRUE(server().lpadmin({u"-p"_s, member, u"-c"_s, name}));
        ASSERT_TRUE(server().command(u"cupsenable"_s, {name}));
        ASSERT_TRUE(server().command(u"cupsaccept"_s, {name}));
    }

    QueueOfQueues()
    {
        for (const QString &output : GetParam().outputs)
            QFile::remove(server().outputOf(output));
    }

    static QString queue() { return QLatin1String(GetParam().queue); }

    /// The queue's last job came out as Glossy.
    static void expectPrinted()
    {
        const QList<int> jobs = server().jobs(queue());
        ASSERT_FALSE(jobs.isEmpty());
        const int job = *std::ranges::max_element(jobs);
        EXPECT_EQ(server().jobAttributes(queue(), job).value(u"VKMediaType"_s), u"Glossy"_s);
        EXPECT_EQ(server().waitForJob(queue(), job), IPP_JSTATE_COMPLETED);
        QByteArray printed;
        for (const QString &output : GetParam().outputs)
            if (QFile::exists(server().outputOf(output)))
                printed += readFile(server().outputOf(output));
        EXPECT_TRUE(printed.contains("%% VKMediaType=Glossy"));
    }
};

TEST_P(QueueOfQueues, IsPrintedToInTheDialog)
{
    const auto window = open(lineFor(server().address(), queue()));
    ASSERT_EQ(window->state(), DialogWindow::State::Ready)
        << window->notice().sentence().toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->notice().sentence() == GetParam().told; }))
        << window->notice().sentence().toStdString();
    pick(*window, "mediaTypePopup", u"Glossy"_s);
    click(*window, "printButton");
    waitWhile(*window, DialogWindow::State::Sending);
    EXPECT_TRUE(window->outcome()) << window->notice().sentence().toStdString();
    expectPrinted();
}

TEST_P(QueueOfQueues, IsPrintedToWithoutTheDialog)
{
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, server().address(), u"-d"_s, queue(), u"-o"_s,
                    u"VKMediaType=Glossy"_s, u"--wait"_s, pdf()});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors.contains(u"different models"_s), !GetParam().told.isNull());
    EXPECT_TRUE(run.errors.contains(GetParam().told)) << run.errors.toStdString();
    expectPrinted();
}

INSTANTIATE_TEST_SUITE_P(Kinds, QueueOfQueues,
                         testing::Values(StandIn{"pair", {u"photo-a"_s, u"photo-b"_s}, {}},
                                         StandIn{"mixed", {u"photo-a"_s}, kDifferentModels},
                                         StandIn{"implicit", {u"implicit"_s}, {}}),
                         [](const auto &kind) { return std::string(kind.param.queue); });

} // namespace
