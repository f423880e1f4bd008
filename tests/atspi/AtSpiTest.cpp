#include "tests/atspi/AccessibilityBus.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/QStringPrinting.h"

#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 30000; // ms

QStringList namesOf(const QList<ToldObject> &objects, const QString &role)
{
    QStringList names;
    for (const ToldObject &object : objects)
        if (object.role == role)
            names += object.name;
    return names;
}

TEST(AssistiveTechnology, FindsTheDialogOverTheBus)
{
    const AccessibilityBus bus;
    ASSERT_EQ(bus.fault(), QString());
    QProcess program;
    program.setProcessEnvironment(bus.environment());
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(PROGRAM),
                  {u"--ppd"_s, samplePPD(u"velkaro-px-t900"_s), u"--panel"_s, u"color"_s});
    QList<ToldObject> told;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            told = bus.everything();
            return namesOf(told, u"slider"_s).size() == 5;
        },
        kTimeout));

    EXPECT_THAT(namesOf(told, u"slider"_s), testing::ElementsAre(u"Brightness"_s, u"Contrast"_s,
                                                                 u"Red"_s, u"Green"_s, u"Blue"_s));
    for (const ToldObject &object : told)
        if (object.role == u"slider"_s) {
            EXPECT_EQ(bus.value(object, u"MinimumValue"_s), -20);
            EXPECT_EQ(bus.value(object, u"MaximumValue"_s), 20);
            EXPECT_EQ(bus.value(object, u"CurrentValue"_s), 0);
        }
    EXPECT_THAT(namesOf(told, u"page tab"_s),
                testing::ElementsAre(u"Page Setup"_s, u"Print Settings"_s, u"Color Settings"_s,
                                     u"Layout & Job"_s, u"Summary"_s));
    EXPECT_THAT(namesOf(told, u"push button"_s),
                testing::IsSupersetOf({u"Help"_s, u"Cancel"_s, u"Print"_s}));
    program.terminate();
    EXPECT_TRUE(program.waitForFinished(kTimeout));
    EXPECT_EQ(program.exitCode(), 1) << "cancelled by a signal";
}

TEST(AssistiveTechnology, IsAlertedByEachNotice)
{
    const AccessibilityBus bus;
    ASSERT_EQ(bus.fault(), QString());
    QProcess program;
    program.setProcessEnvironment(bus.environment());
    program.start(QStringLiteral(NOTICES), QStringList());
    EXPECT_TRUE(program.waitForFinished(kTimeout));
    EXPECT_EQ(program.exitCode(), 0) << "nobody listens to it";
    EXPECT_EQ(program.readAllStandardOutput(), "The job waits.\nThe printer is away.\n");
}

} // namespace
