#include "tests/panel/PanelFixture.h"

#include "platform/toolkit/HelpManager.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QDir>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

class HelpTest : public PanelFixture
{
protected:
    ~HelpTest() override { delete helpWindow(); }

    void makeBook()
    {
        writeBundleFile(u"../../Help/TestView.help/Info.json"_s,
                        R"({"CFBundleHelpBookName": "Test Help", "HPDBookAccessPath": "a.html"})");
        writeBundleFile(u"../../Help/TestView.help/en/a.html"_s, "<p>Help</p>");
    }

    static QTextBrowser *helpWindow()
    {
        return qobject_cast<QTextBrowser *>(HelpManager::sharedHelpManager().window());
    }
};

TEST_F(HelpTest, LooksForItsBookTwoLevelsAboveTheBundle)
{
    createPanel();
    EXPECT_EQ(panel->helpBookPath(), folder.filePath(u"Help/TestView.help"_s));
    EXPECT_EQ(panel->helpBook(), u"Test Help"_s);
    EXPECT_EQ(panel->helpAnchor(), u"VkHelpAnchor"_s);
}

TEST_F(HelpTest, LeavesHelpToTheHostWithoutABook)
{
    showPanel();
    EXPECT_EQ(panel->imageModeFlag() & HelpRegistered, 0);
    EXPECT_TRUE(panel->shouldShowHelp());
    EXPECT_EQ(helpWindow(), nullptr);
}

TEST_F(HelpTest, LeavesHelpToTheHostBeforeTheControlsAreBuilt)
{
    makeBook();
    createPanel();
    EXPECT_TRUE(panel->shouldShowHelp());
}

TEST_F(HelpTest, OpensItsBookAtTheAnchor)
{
    makeBook();
    showPanel();
    EXPECT_NE(panel->imageModeFlag() & HelpRegistered, 0);
    EXPECT_FALSE(panel->shouldShowHelp());
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_EQ(helpWindow()->source().fragment(), u"VkHelpAnchor"_s);
    EXPECT_EQ(helpWindow()->toPlainText(), u"Help"_s);
}

TEST_F(HelpTest, LeavesHelpToTheHostWhereTheBundleNamesNoBook)
{
    makeBook();
    showPanel();
    bundle->overrideInfo({{u"CFBundleHelpBookName"_s, QVariant()}});
    EXPECT_TRUE(panel->shouldShowHelp());
    EXPECT_EQ(helpWindow(), nullptr);
}

TEST_F(HelpTest, OpensWithTheHelpButtonOnlyWithABook)
{
    showPanel();
    auto *button = panel->panelView()->findChild<QPushButton *>(u"helpButton"_s);
    button->click();
    EXPECT_EQ(helpWindow(), nullptr);
    makeBook();
    panel->willShow();
    button->click();
    EXPECT_NE(helpWindow(), nullptr);
}

TEST_F(HelpTest, ForgetsABookThatHasGoneWhenItIsShownAgain)
{
    makeBook();
    showPanel();
    ASSERT_TRUE(QDir(folder.filePath(u"Help"_s)).removeRecursively());
    panel->willShow();
    EXPECT_EQ(panel->imageModeFlag() & HelpRegistered, 0);
    EXPECT_TRUE(panel->shouldShowHelp());
}

} // namespace
