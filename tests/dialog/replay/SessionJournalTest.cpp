// A session is brought to the place of another one by the same events.
#include "dialog/replay/SessionJournal.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/replay/JournalExtract.h"
#include "dialog/replay/StateReport.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Journal : public testing::Test
{
protected:
    Journal()
    {
        UserDefaults::standardUserDefaults().setFolder(QString());
        start();
    }

    void start()
    {
        m_session.reset(); // two at once would hear of each other
        SessionOptions options;
        options.ppdPath = samplePPD(u"velkaro-px-t900"_s);
        options.bundlePath = builtBundle();
        options.alertMemory = QVariantMap();
        m_session = *HostSession::open(options);
        m_journal.attach(*m_session);
        m_session->start();
    }

    const HostPanel &print() { return *m_session->panelNamed(u"print"_s); }

    std::string state() const
    {
        return QJsonDocument(panelReports(*m_session)).toJson().toStdString();
    }

    SessionJournal m_journal;
    std::unique_ptr<HostSession> m_session;
};

TEST_F(Journal, BringsAnotherSessionToTheSamePlace)
{
    m_session->show(print());
    pickChoice(*print().controls, u"mediaTypePopup"_s, u"Glossy"_s);
    const JournalPlace glossy = m_journal.place();
    const std::string atGlossy = state();
    pickChoice(*print().controls, u"monoColorPopup"_s, u"Mono"_s);
    const JournalPlace mono = m_journal.place();
    const std::string atMono = state();
    EXPECT_TRUE(isAfter(glossy, mono));
    EXPECT_FALSE(isAfter(mono, glossy));
    EXPECT_TRUE(isAfter(nullptr, glossy));
    EXPECT_EQ(panelShownAt(mono), u"print"_s);

    start();
    EXPECT_EQ(m_journal.place(), nullptr);
    EXPECT_EQ(panelShownAt(m_journal.place()), QString());
    bring(*m_session, nullptr, glossy);
    EXPECT_EQ(state(), atGlossy);
    bring(*m_session, glossy, mono);
    EXPECT_EQ(state(), atMono);
}

TEST_F(Journal, AnswersAlertsAsTheyWereAndShowsNone)
{
    m_session->show(print());
    pickChoice(*print().controls, u"mediaTypePopup"_s, u"Glossy"_s);
    {
        AlertAnswers answers({AlertAnswers::button(0, true)});
        pickChoice(*print().controls, u"resolutionPopup"_s, u"Best"_s);
        answers.take();
    }
    const JournalPlace place = m_journal.place();
    const std::string before = state();
    start();
    const AlertAnswers none;
    bring(*m_session, nullptr, place);
    EXPECT_EQ(state(), before);
    EXPECT_EQ(none.shown().size(), 0U);
}

TEST_F(Journal, BringsAnotherSessionToTheSamePlaceByFewerEvents)
{
    m_session->show(print());
    for (int count = 0; count < 100; ++count) {
        pickChoice(*print().controls, u"mediaTypePopup"_s,
                   count % 2 == 0 ? u"Glossy"_s : u"Plain"_s);
        pickChoice(*print().controls, u"monoColorPopup"_s, count % 3 == 0 ? u"Mono"_s : u"Color"_s);
    }
    const JournalPlace place = m_journal.place();
    const std::string before = state();
    EXPECT_GT(eventsUpTo(place), 200);
    start();
    bringShortly(*m_session, place);
    EXPECT_EQ(state(), before);
    EXPECT_LT(eventsUpTo(m_journal.place()), 70);
}

struct Extract
{
    std::string behaviour;
    QStringList before; ///< "show PANEL", "PANEL CONTROL=CHOICE"
    QStringList left;
};

class ExtractOf : public testing::TestWithParam<Extract>
{};

ReplayAction actionOf(const QString &text)
{
    if (text.startsWith("show "_L1))
        return ReplayShow{text.mid(5)};
    return ReplayPick{text.section(u' ', 0, 0), text.section(u' ', 1).section(u'=', 0, 0),
                      text.section(u'=', 1), std::nullopt};
}

QString textOf(const ReplayAction &action)
{
    if (const auto *show = std::get_if<ReplayShow>(&action))
        return u"show "_s + show->panel;
    const auto &pick = std::get<ReplayPick>(action);
    return pick.panel + u' ' + pick.control + u'=' + pick.choice.value_or(QString());
}

TEST_P(ExtractOf, Events)
{
    const QStringList latest(60, u"p last=1"_s);
    std::vector<std::unique_ptr<JournalEntry>> entries;
    std::vector<const JournalEntry *> events;
    for (const QString &text : GetParam().before + latest) {
        entries.push_back(
            std::make_unique<JournalEntry>(nullptr, actionOf(text), FollowedAnswers()));
        events.push_back(entries.back().get());
    }
    QStringList left;
    for (const JournalEntry *event : extractOf(events))
        left += textOf(event->action);
    EXPECT_EQ(left, GetParam().left + latest);
}

const Extract kExtracts[] = {
    {"KeepsTheLatestWhole", {}, {}},
    {"KeepsTheLastPickInEachControl",
     {u"p a=1"_s, u"p b=1"_s, u"p a=2"_s, u"p last=1"_s, u"q a=1"_s, u"p a=3"_s},
     {u"p b=1"_s, u"p last=1"_s, u"q a=1"_s, u"p a=3"_s}},
    {"KeepsWhereEachPanelWasShownFirst",
     {u"show p"_s, u"p a=1"_s, u"show q"_s, u"show p"_s, u"p a=2"_s, u"show q"_s, u"show p"_s},
     {u"show p"_s, u"show q"_s, u"p a=2"_s, u"show q"_s, u"show p"_s}},
};

INSTANTIATE_TEST_SUITE_P(, ExtractOf, testing::ValuesIn(kExtracts), CaseName());

TEST_F(Journal, KeepsALongWayWithoutBeingDeep)
{
    JournalPlace place;
    for (int event = 0; event < 1'000'000; ++event)
        place = std::make_shared<JournalEntry>(place, ReplayRevert{}, FollowedAnswers());
    place.reset();
}

} // namespace
