// A panel that tells nothing of itself beside what every panel must.
#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QString plainBundle()
{
    return QLatin1String(FIXTURE_FOLDER) + u"/Plain.bundle"_s;
}

class PlainPanel : public DialogWindowFixture
{
protected:
    PlainPanel()
    {
        m_line.ppd = m_folder.filePath(u"small.ppd"_s);
        m_line.plugIn = plainBundle();
        writeFile(m_line.ppd, smallPrinter().text());
    }
};

TEST_F(PlainPanel, HasATabOfItsOwn)
{
    open();
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Plain"_s, u"Layout & Job"_s, u"Summary"_s}));
    EXPECT_TRUE(part<QWidget>("plainView")->isVisible());
    EXPECT_EQ(notice(), QString());
}

TEST_F(PlainPanel, HearsOfTheWindowThatGrowsWithIt)
{
    open();
    const int before = m_window->height();
    click("unfoldButton");
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return part<QWidget>("plainView")->windowTitle() == u"unfolded"_s; }, kTimeout));
    EXPECT_GT(m_window->height(), before);
}

TEST_F(PlainPanel, IsToldOfTheSettingsOfTheCommandLine)
{
    m_line.choices = {{u"Finish"_s, u"Shiny"_s}};
    open();
    EXPECT_EQ(notice(), QString());
    EXPECT_EQ(marked(u"Finish"_s), u"Shiny"_s);
    EXPECT_TRUE(summary().contains(u"Finish=Shiny"_s));
}

TEST_F(PlainPanel, KeepsTheDialogFromNoSetting)
{
    m_line.choices = {{u"Finish"_s, u"Shiny"_s}, {u"Weight"_s, u"Heavy"_s}};
    open();
    EXPECT_EQ(marked(u"Finish"_s), u"Shiny"_s);
    EXPECT_EQ(marked(u"Weight"_s), u"Light"_s); // the PPD's own constraint
    EXPECT_NE(notice(), QString());
}

TEST_F(PlainPanel, HasItsPicksUndoneThoughNobodySeesThem)
{
    open();
    const auto press = [this](Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(m_window.get(), Qt::Key_Z, modifiers);
        QCoreApplication::processEvents();
    };
    click("shinyButton");
    QCoreApplication::processEvents();
    ASSERT_EQ(marked(u"Finish"_s), u"Shiny"_s);
    EXPECT_TRUE(m_window->showPart(u"setup"_s));
    pick("paperPopup", u"A5"_s);
    press(Qt::ControlModifier);
    EXPECT_EQ(marked(u"PageSize"_s), u"A4"_s);
    EXPECT_EQ(marked(u"Finish"_s), u"Shiny"_s);
    press(Qt::ControlModifier);
    EXPECT_EQ(marked(u"Finish"_s), u"Matt"_s);
    press(Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(marked(u"Finish"_s), u"Shiny"_s);
}

TEST_F(PlainPanel, IsReplayedWithWhatIsKnownOfIt)
{
    ReplaySession session(plainBundle());
    const auto run = [&](const QByteArray &line) {
        const auto read = readReplayLine(line, QDir(m_folder.path()));
        EXPECT_TRUE(read) << read.sentence().toStdString();
        return QJsonDocument::fromJson(*session.run(**read)).object();
    };
    const QJsonObject opened = run(R"({"do": "open", "ppd": "small.ppd"})");
    EXPECT_EQ(opened[u"result"_s], QJsonArray{u"com.velkaro.test.plain"_s});
    const QJsonObject shown = run(R"({"do": "show", "panel": "com.velkaro.test.plain"})");
    EXPECT_EQ(shown[u"panels"_s].toObject()[u"com.velkaro.test.plain"_s],
              (QJsonObject{{u"keys"_s, QJsonArray{u"Finish"_s, u"Weight"_s}}, {u"height"_s, 100}}));
    const QJsonObject picked = run(R"({"do": "pick", "panel": "com.velkaro.test.plain",
                                       "control": "finish", "choice": "Shiny"})");
    EXPECT_EQ(picked[u"error"_s],
              u"the panel \"com.velkaro.test.plain\" tells nothing of its controls"_s);
}

} // namespace
