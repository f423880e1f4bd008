#include "dialog/program/ToolkitMessages.h"

#include <QtCore/QDebug>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

/// What is on standard error after `say` with the messages handled.
std::string told(void (*say)())
{
    testing::internal::CaptureStderr();
    tellToolkitFaultsOnly();
    say();
    qInstallMessageHandler(nullptr);
    return testing::internal::GetCapturedStderr();
}

TEST(ToolkitMessages, SayNothingOfTheMachine)
{
    EXPECT_EQ(told([] {
                  qDebug("a plug-in was looked at");
                  qInfo("a font was looked for");
                  qWarning("XDG_RUNTIME_DIR not set");
              }),
              "");
}

TEST(ToolkitMessages, SayWhatIsWrong)
{
    EXPECT_EQ(told([] {
                  qWarning("XDG_RUNTIME_DIR not set");
                  qCritical("out of memory");
              }),
              "velkaro-print: out of memory\n");
}

TEST(ToolkitMessagesDeathTest, SayWhyTheProgramEnds)
{
    EXPECT_DEATH(
        {
            tellToolkitFaultsOnly();
            qWarning("could not connect to display");
            qFatal("no platform plug-in");
        },
        "^velkaro-print: could not connect to display\nvelkaro-print: no platform plug-in\n");
}

TEST(ToolkitMessagesDeathTest, LeaveTheLastWordToWhoWantsIt)
{
    EXPECT_EXIT(
        {
            tellToolkitFaultsOnly();
            giveUpInsteadOfAborting([] {
                std::fputs("no display\n", stderr);
                std::_Exit(2);
            });
            qWarning("could not connect to display");
            qFatal("no platform plug-in");
        },
        testing::ExitedWithCode(2), "^no display\n$");
}

TEST(ToolkitMessagesDeathTest, KeepOnlyTheLastRemarks)
{
    EXPECT_DEATH(
        {
            tellToolkitFaultsOnly();
            for (int number = 1; number <= 25; ++number)
                qWarning("remark %d", number);
            qFatal("the end");
        },
        "^velkaro-print: remark 6\n(velkaro-print: remark [0-9]+\n)*velkaro-print: remark 25\n"
        "velkaro-print: the end\n");
}

} // namespace
