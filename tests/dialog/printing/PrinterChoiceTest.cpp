#include "dialog/printing/PrinterChoice.h"

#include "dialog/printing/LastPrinter.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Destination queue(const QString &name)
{
    return {.name = queueName(name)};
}

Destination closed(const QString &name)
{
    return {.name = queueName(name), .isAccepting = false};
}

Destination serverDefault(const QString &name)
{
    return {.name = queueName(name), .isDefault = true};
}

struct Case
{
    const char *behaviour;
    PrinterCandidates known;
    QString chosen; ///< null: none
    QString sentence;
};

class PrinterToBeginWith : public testing::TestWithParam<Case>
{};

TEST_P(PrinterToBeginWith, IsTheLikeliestOfTheServers)
{
    const Result<PrinterChoice> choice = chosenPrinter(GetParam().known);
    EXPECT_EQ(choice ? textOf(choice->queue) : QString(), GetParam().chosen);
    EXPECT_EQ(choice ? choiceSentence(*choice) : choice.sentence(), GetParam().sentence);
    if (!choice) {
        EXPECT_EQ(choice.faultKind(), FaultKind::NoPrinter);
    }
}

const QList<Destination> kThree{queue(u"a"_s), serverDefault(u"b"_s), queue(u"c"_s),
                                queue(u"c/glossy"_s)};

INSTANTIATE_TEST_SUITE_P(
    Table, PrinterToBeginWith,
    testing::Values(
        Case{"TheLastUsedBeforeAllOthers",
             {{u"c"_s, {}}, {u"a"_s, {}}, {u"a"_s, {}}, kThree},
             u"c"_s,
             u"c was chosen: you printed to it last."_s},
        Case{"TheLastUsedInstance",
             {{u"c"_s, u"glossy"_s}, {}, {}, kThree},
             u"c/glossy"_s,
             u"c/glossy was chosen: you printed to it last."_s},
        Case{"TheQueueOfAnInstanceThatIsNoMore",
             {{u"c"_s, u"matte"_s}, {}, {}, kThree},
             u"c"_s,
             u"c was chosen: you printed to it last."_s},
        Case{"TheEnvironmentsWhereTheLastUsedIsNoMore",
             {{u"gone"_s, {}}, {u"a"_s, {}}, {u"c"_s, {}}, kThree},
             u"a"_s,
             u"a was chosen: LPDEST or PRINTER names it."_s},
        Case{"TheNameInAnotherCase",
             {{}, {u"A"_s, {}}, {}, kThree},
             u"a"_s,
             u"a was chosen: LPDEST or PRINTER names it."_s},
        Case{"TheSavedDefaultBeforeTheServers",
             {{}, {u"gone"_s, {}}, {u"c"_s, u"glossy"_s}, kThree},
             u"c/glossy"_s,
             u"c/glossy was chosen: it is your default printer."_s},
        Case{"TheServersDefault",
             {{}, {}, {u"gone"_s, {}}, kThree},
             u"b"_s,
             u"b was chosen: it is the print server's default printer."_s},
        Case{"TheOnlyOneEvenWhenItIsClosed",
             {{}, {}, {}, {closed(u"a"_s), closed(u"a/glossy"_s)}},
             u"a"_s,
             u"a was chosen: it is the only printer."_s},
        Case{"TheFirstThatTakesJobs",
             {{}, {}, {}, {closed(u"a"_s), queue(u"b"_s), queue(u"c"_s)}},
             u"b"_s,
             u"b was chosen: it is the first printer that takes jobs, and none is the default."_s},
        Case{"NoneWhereAllAreClosed",
             {{}, {}, {}, {closed(u"a"_s), closed(u"b"_s)}},
             {},
             u"No printer takes jobs at present. Choose one, or try again later."_s},
        Case{"NoneOfAnEmptyServer",
             {{u"a"_s, {}}, {u"b"_s, {}}, {u"c"_s, {}}, {}},
             {},
             u"The print server has no printer to print to."_s}),
    CaseName());

/// What is remembered in a folder of the test's own.
class LastPrinter : public testing::Test
{
protected:
    LastPrinter() { UserDefaults::standardUserDefaults().setFolder(m_folder.path()); }
    ~LastPrinter() override { UserDefaults::standardUserDefaults().setFolder(QString()); }

    QTemporaryDir m_folder;
};

TEST_F(LastPrinter, IsRememberedForEachServer)
{
    EXPECT_EQ(lastPrinter(u"first:631"_s), QueueName());
    rememberPrinter(u"first:631"_s, {u"photo"_s, u"glossy"_s});
    rememberPrinter(u"first:632"_s, {u"office"_s, {}});
    rememberPrinter(u"/run/cups/cups.sock"_s, {u"home"_s, {}});
    EXPECT_EQ(lastPrinter(u"first:631"_s), (QueueName{u"photo"_s, u"glossy"_s}));
    EXPECT_EQ(lastPrinter(u"first"_s), (QueueName{u"photo"_s, u"glossy"_s})) << "the usual port";
    EXPECT_EQ(lastPrinter(u"first:632"_s), (QueueName{u"office"_s, {}}));
    EXPECT_EQ(lastPrinter(u"/run/cups/cups.sock"_s), (QueueName{u"home"_s, {}}));
    EXPECT_EQ(lastPrinter(u"second:631"_s), QueueName());
}

TEST_F(LastPrinter, IsNotRememberedWhereNothingCanBeKept)
{
    UserDefaults::standardUserDefaults().setFolder(u"/dev/null"_s);
    rememberPrinter(u"first:631"_s, {u"photo"_s, {}});
    EXPECT_EQ(lastPrinter(u"first:631"_s), QueueName());
}

} // namespace
