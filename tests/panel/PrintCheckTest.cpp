#include "tests/panel/PanelFixture.h"

#include "tests/support/AlertAnswers.h"
#include "tests/support/QStringPrinting.h"

using namespace Qt::StringLiterals;

namespace {

class PrintCheckTest : public PanelFixture
{};

TEST_F(PrintCheckTest, SavesTheValuesAndLetsTheJobGo)
{
    createPanel();
    const AlertAnswers answers;
    panel->paperName = u"A4"_s;
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel->asked, QStringList{u"saveValues"_s});
}

TEST_F(PrintCheckTest, LetsAJobWithoutAPaperGo)
{
    createPanel();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel->asked, QStringList{u"saveValues"_s});
}

TEST_F(PrintCheckTest, VetoesAnUnsupportedPaperWithOneAlert)
{
    createPanel();
    const QVariantMap before = panel->outputBin();
    const AlertAnswers answers({AlertAnswers::button(0)});
    panel->paperName = u"UnsupportedPaper"_s;
    EXPECT_FALSE(panel->shouldPrint());
    const ShownAlert &alert = answers.shown().at(0);
    EXPECT_EQ(alert.kind, ShownAlert::Kind::Modal);
    EXPECT_EQ(alert.content.style, AlertStyle::Warning);
    EXPECT_EQ(alert.content.text, u"Unsupported Paper Title"_s);
    EXPECT_EQ(alert.content.informative,
              u"Unsupported Paper MSG1\n\nUnsupported Paper MSG2\nUnsupported Paper MSG3\n"
              "Unsupported Paper MSG4"_s);
    EXPECT_EQ(alert.content.buttons, QStringList{u"OK"_s});
    EXPECT_FALSE(alert.content.suppression);
    EXPECT_TRUE(panel->asked.isEmpty()) << "nothing is saved";
    EXPECT_EQ(panel->outputBin(), before);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(PrintCheckTest, VetoesAnUnsupportedPaperHoweverTheAlertIsDismissed)
{
    createPanel();
    const AlertAnswers answers({AlertAnswers::closing()});
    panel->paperName = u"UnsupportedPaper"_s;
    EXPECT_FALSE(panel->shouldPrint());
}

TEST_F(PrintCheckTest, LetsAFaxGoAtOnceAlsoOnAnUnsupportedPaper)
{
    createPanel();
    const AlertAnswers answers;
    mark(u"VKOutput"_s, u"FAX"_s);
    panel->paperName = u"UnsupportedPaper"_s;
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_TRUE(panel->asked.isEmpty()) << "a fax saves no values";
    EXPECT_NE(panel->imageModeFlag() & FaxOutput, 0);
}

TEST_F(PrintCheckTest, ChecksAgainWhetherItIsAFax)
{
    createPanel();
    panel->setFlag(FaxOutput, true);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel->asked, QStringList{u"saveValues"_s});
}

} // namespace
