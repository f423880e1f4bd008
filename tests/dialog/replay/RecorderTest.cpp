// A session that is driven as people drive it, recorded, and replayed: the script leads to the same
// state.
#include "dialog/replay/Recorder.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/host/controls/UserActions.h"
#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"
#include "dialog/replay/StateReport.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/SizeWatch.h"
#include "tests/built/BuiltFiles.h"
#include "tests/dialog/replay/JsonSubset.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RecorderTest : public testing::Test
{
protected:
    RecorderTest()
    {
        UserDefaults::standardUserDefaults().setFolder(QString());
        m_window.resize(640, 700);
        setKeyWindow(&m_window);
        m_options.ppdPath = samplePPD(u"velkaro-px-t900"_s);
        m_options.languages = QStringList{u"ja"_s};
        m_options.marks = {{u"PageSize"_s, u"A3"_s}};
        m_options.ticket = {{u"number"_s, 7}};
    }

    ~RecorderTest() override { setKeyWindow(nullptr); }

    HostSession &record()
    {
        m_recorder = std::make_unique<Recorder>();
        EXPECT_EQ(m_recorder->open(script(), m_terms).sentence(), QString());
        m_session = *HostSession::open(m_options);
        EXPECT_EQ(m_recorder->attach(*m_session).sentence(), QString());
        m_session->start();
        return *m_session;
    }

    QString script() const { return m_folder.filePath(u"session.jsonl"_s); }
    const HostPanel &panel(const QString &name) const { return *m_session->panelNamed(name); }

    template <typename Control> Control *control(const QString &panelName, const QString &name)
    {
        return qobject_cast<Control *>(controlNamed(*panel(panelName).controls, name));
    }

    QJsonObject state() const
    {
        QJsonObject members;
        for (const auto &[name, value] : stateReport(m_session.get()))
            members.insert(name, value);
        return members;
    }

    void finish()
    {
        QApplication::processEvents();
        m_session.reset();
        EXPECT_EQ(m_recorder->finish().sentence(), QString());
        m_recorder.reset();
    }

    /// The lines of the script.
    QList<QJsonObject> lines() const
    {
        QFile file(script());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QList<QJsonObject> lines;
        while (!file.atEnd())
            lines << QJsonDocument::fromJson(file.readLine()).object();
        return lines;
    }

    QStringList kinds() const
    {
        QStringList kinds;
        for (const QJsonObject &line : lines())
            kinds << line["do"_L1].toString();
        return kinds;
    }

    QJsonObject lastOf(const QString &kind) const
    {
        QJsonObject last;
        for (const QJsonObject &line : lines()) {
            if (line["do"_L1] == kind)
                last = line;
        }
        return last;
    }

    /// The state after the script's last event before it closes.
    QJsonObject replayedState() const
    {
        ReplaySession replay;
        QJsonObject last;
        QFile file(script());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        while (!file.atEnd()) {
            const auto event = readReplayLine(file.readLine(), QDir(m_folder.path()));
            EXPECT_EQ(event.sentence(), QString());
            if ((*event)->kind == "close"_L1)
                break;
            last = QJsonDocument::fromJson(*replay.run(**event)).object();
            EXPECT_FALSE(last.contains("error"_L1)) << last["error"_L1].toString().toStdString();
        }
        return last;
    }

    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

    AlertAnswers m_answers;
    QWidget m_window;
    QTemporaryDir m_folder;
    OutputTerms m_terms;
    SessionOptions m_options;
    std::unique_ptr<Recorder> m_recorder;
    std::unique_ptr<HostSession> m_session;
};

std::string differences(const QJsonObject &expected, const QJsonObject &actual)
{
    return missingParts(expected, actual).join(u'\n').toStdString();
}

} // namespace

TEST_F(RecorderTest, ABusySessionLeadsToTheSameStateWhenItIsReplayed)
{
    HostSession &session = record();
    session.show(panel(u"print"_s));
    pickChoice(*panel(u"print"_s).controls, u"mediaTypePopup"_s, u"Glossy"_s);
    m_answers.expect(AlertAnswers::button(0, true));
    pickChoice(*panel(u"print"_s).controls, u"resolutionPopup"_s, u"Best"_s);
    m_answers.take();
    pickChecked(*panel(u"print"_s).controls, u"mirrorButton"_s, true);
    foldSection(*panel(u"print"_s).controls, true);
    session.hide(panel(u"print"_s));
    session.show(panel(u"color"_s));
    pickChoice(*panel(u"color"_s).controls, u"colorMatchingMatrix"_s, u"Vivid"_s);
    pickChecked(*panel(u"color"_s).controls, u"colorEnhanceButton"_s, true);
    moveSlider(session, u"VKRed"_s, 7.6);
    moveSlider(session, u"VKRed"_s, 7.4);
    moveSlider(session, u"VKBlue"_s, -3);
    session.save(panel(u"color"_s));
    session.markElsewhere(u"Duplex"_s, u"DuplexNoTumble"_s);
    session.markElsewhere(u"Duplex"_s, u"None"_s);
    session.setPaper({u"120x120mm"_s, u"120x120mm"_s, 340, 340}, QString());
    session.writeTicket(u"AP_ColorMatchingMode"_s, u"AP_VendorColorMatching"_s);
    session.writeTicket(u"number"_s, QVariant());
    session.restoreAll();
    session.summary(panel(u"color"_s));
    m_answers.expect(AlertAnswers::button(1));
    EXPECT_FALSE(session.askShouldPrint().proceed);
    const QJsonObject expected = state();
    finish();
    const QJsonObject actual = replayedState();
    EXPECT_EQ(differences(expected, actual), "");
    EXPECT_EQ(differences(actual["panels"_L1].toObject(), expected["panels"_L1].toObject()), "");
}

TEST_F(RecorderTest, NotesHowTheSessionBegan)
{
    record();
    finish();
    EXPECT_EQ(kinds(), (QStringList{u"open"_s, u"close"_s}));
    const QJsonObject expected =
        QJsonDocument::fromJson(R"({"ppd": "session.ppd", "marks": {"PageSize": "A3"},
            "ticket": {"number": 7}, "languages": ["ja"], "windowHeight": 700,
            "type": "BDB091F4-E57F-11D3-B5CC-0050E4603277",
            "paper": {"name": "A3", "ppdName": "A3", "width": 842, "height": 1191}})")
            .object();
    EXPECT_EQ(differences(expected, lines().constFirst()), "");
}

TEST_F(RecorderTest, KeepsThePPDBesideTheScript)
{
    record();
    finish();
    EXPECT_EQ(readFile(m_folder.filePath(u"session.ppd"_s)), readFile(m_options.ppdPath));
}

TEST_F(RecorderTest, NotesWhatWasPickedThoughTheHostRefusedIt)
{
    m_options.refused = {u"VKColorMatching=None"_s, u"VKMonoColor=Mono"_s};
    record().show(panel(u"color"_s));
    m_session->show(panel(u"print"_s));
    pickChoice(*panel(u"color"_s).controls, u"colorMatchingMatrix"_s, u"None"_s);
    EXPECT_EQ(lastOf(u"pick"_s)["choice"_L1], u"None"_s);
    pickChoice(*panel(u"print"_s).controls, u"monoColorPopup"_s, u"Mono"_s);
    EXPECT_EQ(lastOf(u"pick"_s)["choice"_L1], u"Mono"_s);
    finish();
    EXPECT_EQ(lines().constFirst()["refuse"_L1].toArray().size(), 2);
}

TEST_F(RecorderTest, NotesTheValueToWhichASliderWasMovedAndNotTheOneKept)
{
    record().show(panel(u"color"_s));
    pickChecked(*panel(u"color"_s).controls, u"colorEnhanceButton"_s, true);
    moveSlider(*m_session, u"VKGreen"_s, 2.75);
    finish();
    EXPECT_EQ(lastOf(u"slide"_s)["keyword"_L1], u"VKGreen"_s);
    EXPECT_EQ(lastOf(u"slide"_s)["value"_L1], 2.75);
}

TEST_F(RecorderTest, NotesRealClicks)
{
    record().show(panel(u"print"_s));
    auto *mirror = control<QAbstractButton>(u"print"_s, u"mirrorButton"_s);
    QTest::mouseClick(mirror, Qt::LeftButton, {}, QPoint(5, mirror->height() / 2));
    finish();
    EXPECT_EQ(lastOf(u"pick"_s)["control"_L1], u"mirrorButton"_s);
    EXPECT_EQ(lastOf(u"pick"_s)["checked"_L1], true);
}

TEST_F(RecorderTest, DoesNotTakeWhatTheProgramSelectsForAPick)
{
    record().show(panel(u"print"_s));
    m_session->markElsewhere(u"VKMediaType"_s, u"Glossy"_s); // selects media, quality, direction
    finish();
    EXPECT_EQ(kinds(), (QStringList{u"open"_s, u"show"_s, u"mark"_s, u"close"_s}));
}

TEST_F(RecorderTest, FollowsAPanelOnceHoweverOftenItIsShown)
{
    record().show(panel(u"print"_s));
    m_session->show(panel(u"print"_s));
    pickChoice(*panel(u"print"_s).controls, u"monoColorPopup"_s, u"Mono"_s);
    finish();
    EXPECT_EQ(kinds().count(u"pick"_s), 1);
}

TEST_F(RecorderTest, ASheetsAnswerBelongsToTheEventThatRaisedIt)
{
    record().show(panel(u"print"_s));
    pickChoice(*panel(u"print"_s).controls, u"mediaTypePopup"_s, u"Glossy"_s);
    m_answers.expect(AlertAnswers::button(0, true));
    pickChoice(*panel(u"print"_s).controls, u"resolutionPopup"_s, u"Best"_s);
    m_session->windowDidResize();
    QApplication::processEvents();
    m_answers.take();
    finish();
    const QJsonArray answers{QJsonObject{{u"button"_s, 0}, {u"suppress"_s, true}}};
    EXPECT_EQ(lastOf(u"pick"_s)["answers"_L1], answers);
    EXPECT_EQ(kinds(),
              (QStringList{u"open"_s, u"show"_s, u"pick"_s, u"pick"_s, u"window"_s, u"close"_s}));
}

TEST_F(RecorderTest, AWindowThatGrowsWithASectionIsNotedAfterIt)
{
    record().show(panel(u"print"_s));
    auto *button = control<QAbstractButton>(u"print"_s, u"optionButton"_s);
    // What a dialog does when it is told that a panel has grown.
    QObject::connect(button, &QAbstractButton::toggled, &m_window, [this] {
        m_window.resize(640, 900);
        m_session->windowDidResize();
    });
    foldSection(*panel(u"print"_s).controls, true);
    finish();
    EXPECT_EQ(kinds(), (QStringList{u"open"_s, u"show"_s, u"fold"_s, u"window"_s, u"close"_s}));
    EXPECT_EQ(lastOf(u"window"_s)["height"_L1], 900);
}

TEST_F(RecorderTest, NotesTheWatchAfterTheWindow)
{
    record().show(panel(u"color"_s));
    m_window.resize(640, 500);
    partsOfViews<SizeWatch>(*m_session).constFirst()->fire();
    finish();
    EXPECT_EQ(kinds(), (QStringList{u"open"_s, u"show"_s, u"window"_s, u"watch"_s, u"close"_s}));
}

TEST_F(RecorderTest, ASecondSessionGoesOnInTheSameScript)
{
    record();
    m_session.reset();
    m_options.ppdPath = samplePPD(u"velkaro-mx-j710dw"_s);
    m_session = *HostSession::open(m_options);
    ASSERT_TRUE(m_recorder->attach(*m_session));
    m_session->start();
    finish();
    EXPECT_EQ(kinds(), (QStringList{u"open"_s, u"close"_s, u"open"_s, u"close"_s}));
    EXPECT_EQ(lastOf(u"open"_s)["ppd"_L1], u"session-2.ppd"_s);
}

TEST_F(RecorderTest, LeavesAPPDAloneThatIsAnother)
{
    writeFile(m_folder.filePath(u"session.ppd"_s), "precious");
    record();
    finish();
    EXPECT_EQ(readFile(m_folder.filePath(u"session.ppd"_s)), "precious");
    EXPECT_EQ(lastOf(u"open"_s)["ppd"_L1], u"session-2.ppd"_s);
    EXPECT_EQ(readFile(m_folder.filePath(u"session-2.ppd"_s)), readFile(m_options.ppdPath));
}

TEST_F(RecorderTest, TakesAPPDThatIsThereAlready)
{
    const QString copy = m_folder.filePath(u"session.ppd"_s);
    ASSERT_TRUE(QFile::copy(m_options.ppdPath, copy));
    m_options.ppdPath = copy;
    record();
    finish();
    EXPECT_EQ(lastOf(u"open"_s)["ppd"_L1], u"session.ppd"_s);
    EXPECT_EQ(names(), (QStringList{u"session.jsonl"_s, u"session.ppd"_s}));
}

TEST_F(RecorderTest, KeepsTheFilesOfASessionThatWasNotFinished)
{
    writeFile(script(), "precious");
    m_terms.mayReplace = true;
    record();
    m_session.reset();
    m_recorder.reset();
    EXPECT_EQ(readFile(script()), "precious");
    EXPECT_EQ(names(), QStringList{u"session.jsonl"_s});
}

TEST_F(RecorderTest, CanBeReadBeforeItsEnd)
{
    record().show(panel(u"print"_s));
    EXPECT_EQ(kinds(), (QStringList{u"open"_s, u"show"_s}));
    finish();
}

TEST_F(RecorderTest, LeavesNothingWhenNotEverythingCouldBeWritten)
{
    record();
    {
        const FileSizeLimit limit(static_cast<rlim_t>(QFileInfo(script()).size()));
        m_session->show(panel(u"print"_s));
    }
    m_session.reset();
    EXPECT_EQ(m_recorder->finish().sentence(),
              u"The file %1 cannot be written: File too large."_s.arg(script()));
    m_recorder.reset();
    EXPECT_EQ(names(), QStringList());
}

TEST_F(RecorderTest, LeavesNoScriptWhenItsPPDCannotBeCopied)
{
    m_recorder = std::make_unique<Recorder>();
    ASSERT_TRUE(m_recorder->open(script(), {}));
    m_session = *HostSession::open(m_options);
    const QString sentence = u"The file %1 cannot be written: File too large."_s.arg(
        m_folder.filePath(u"session.ppd"_s));
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(m_recorder->attach(*m_session).sentence(), sentence);
    }
    m_session->start();
    m_session.reset();
    EXPECT_EQ(m_recorder->finish().sentence(), sentence);
    m_recorder.reset();
    EXPECT_EQ(names(), QStringList());
}

TEST_F(RecorderTest, DoesNotReplaceAFileUnasked)
{
    writeFile(script(), "precious");
    Recorder recorder;
    EXPECT_EQ(recorder.open(script(), {}).sentence(),
              u"The file %1 exists already; --force replaces it."_s.arg(script()));
    EXPECT_EQ(readFile(script()), "precious");
}

TEST_F(RecorderTest, AScriptThatCannotBeWrittenIsSaidSo)
{
    Recorder recorder;
    EXPECT_EQ(recorder.open(u"/nowhere/session.jsonl"_s, {}).sentence(),
              u"The file /nowhere/session.jsonl cannot be written: No such file or "
              u"directory."_s);
}
