#include "dialog/printing/UndoHistory.h"

#include <gtest/gtest.h>

#include <string>

using namespace Qt::StringLiterals;

namespace {

using History = UndoHistory<std::string>;

History begun()
{
    History history;
    history.begin("plain");
    return history;
}

} // namespace

TEST(UndoHistory, HasNothingToUndoAtItsBeginning)
{
    EXPECT_TRUE(History().isEmpty());
    const History history = begun();
    EXPECT_FALSE(history.isEmpty());
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.current(), "plain");
}

TEST(UndoHistory, GoesBackAndForthOneStepAtATime)
{
    History history = begun();
    history.note("glossy");
    history.note("glossy, best");
    EXPECT_EQ(history.undo(), "glossy");
    EXPECT_EQ(history.undo(), "plain");
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.redo(), "glossy");
    EXPECT_EQ(history.redo(), "glossy, best");
    EXPECT_FALSE(history.canRedo());
}

TEST(UndoHistory, ForgetsWhatWasUndoneWithTheNextStep)
{
    History history = begun();
    history.note("glossy");
    history.note("glossy, best");
    history.undo();
    history.note("glossy, mono");
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undo(), "glossy");
}

TEST(UndoHistory, TakesStepsOfOneSubjectTogether)
{
    History history = begun();
    history.note("1", u"copies"_s);
    history.note("12", u"copies"_s);
    history.note("12, pages 1", u"pages"_s);
    EXPECT_EQ(history.undo(), "12");
    EXPECT_EQ(history.undo(), "plain");
    EXPECT_FALSE(history.canUndo());
}

TEST(UndoHistory, TakesStepsWithoutASubjectApart)
{
    History history = begun();
    history.note("glossy");
    history.note("glossy, best");
    EXPECT_EQ(history.undo(), "glossy");
}

TEST(UndoHistory, BeginsAnewWhereASubjectHasEnded)
{
    History history = begun();
    history.note("5", u"slider"_s);
    history.endSubject();
    history.note("7", u"slider"_s);
    EXPECT_EQ(history.undo(), "5");
    EXPECT_EQ(history.undo(), "plain");
}

TEST(UndoHistory, DoesNotGoOnWithASubjectThatWasUndone)
{
    History history = begun();
    history.note("5", u"slider"_s);
    history.undo();
    history.note("7", u"slider"_s);
    EXPECT_EQ(history.undo(), "plain");
}

TEST(UndoHistory, KeepsWhatCanBeDoneAgainWhenAStateBecomesAnotherByItself)
{
    History history = begun();
    history.note("glossy");
    history.undo();
    history.amend("plain, looked at");
    EXPECT_EQ(history.redo(), "glossy");
    EXPECT_EQ(history.undo(), "plain, looked at");
}
