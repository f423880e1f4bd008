// Why each setting has its value, in the summary.
#include "tests/dialog/window/UndoFixture.h"
#include "tests/support/LpoptionsFolder.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

class WhereFrom : public UndoFixture
{
protected:
    /// The summary as it is copied, a line each.
    QStringList lines()
    {
        showTab(u"summary"_s);
        click("copySummaryButton");
        const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
        showTab(u"print"_s);
        return lines;
    }

    /// The lines of the title.
    QStringList of(const QString &title)
    {
        QStringList found = lines();
        found.removeIf([&](const QString &line) { return !line.startsWith(title + u": "_s); });
        return found;
    }

    LpoptionsFolder m_lpoptions;
};

TEST_F(WhereFrom, TellsThePrinterAndWhoeverPicked)
{
    open();
    EXPECT_EQ(of(u"Media Type"_s),
              QStringList{u"Media Type: Plain Paper (The printer's default)"_s});
    pick("mediaTypePopup", u"Glossy"_s);
    EXPECT_EQ(of(u"Media Type"_s), QStringList{u"Media Type: Other Glossy Paper (Your choice)"_s});
    EXPECT_EQ(of(u"Print Quality"_s),
              QStringList{u"Print Quality: Photo (Because you chose Media Type: Other Glossy "
                          "Paper)"_s});
    EXPECT_EQ(of(u"Color Mode"_s), QStringList{u"Color Mode: Color (The printer's default)"_s});
}

TEST_F(WhereFrom, TellsWhatUndoHasBroughtBack)
{
    open();
    const QStringList before = lines();
    pick("mediaTypePopup", u"Glossy"_s);
    const QStringList after = lines();
    EXPECT_NE(before, after);
    undo();
    EXPECT_EQ(lines(), before);
    redo();
    EXPECT_EQ(lines(), after);
}

TEST_F(WhereFrom, TellsTheCommandLineAndTheDialog)
{
    m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}};
    open();
    EXPECT_EQ(of(u"Media Type"_s),
              QStringList{u"Media Type: Other Glossy Paper (From the command line)"_s});
    EXPECT_EQ(of(u"Print Quality"_s),
              QStringList{u"Print Quality: Photo (Goes with the other settings)"_s});
    QTest::keyClick(part<QSpinBox>("copiesField"), Qt::Key_Up);
    EXPECT_EQ(of(u"Copies"_s), QStringList{u"Copies: 2 (Your choice)"_s});
}

TEST_F(WhereFrom, TellsPresetsApartFromWhatIsSavedWithTheQueue)
{
    m_line.queue = u"photo"_s;
    m_line.instance = u"warm"_s;
    m_lpoptions.writeUser("Dest photo PageSize=A3\nDest photo/warm PageSize=A3 "
                          "VKMediaType=Glossy copies=3\n");
    open();
    EXPECT_EQ(of(u"Media Type"_s),
              QStringList{u"Media Type: Other Glossy Paper (From the preset warm)"_s});
    EXPECT_EQ(of(u"Copies"_s), QStringList{u"Copies: 3 (From the preset warm)"_s});
    EXPECT_EQ(of(u"Paper in the Printer"_s),
              QStringList{u"Paper in the Printer: A3 (Saved with the printer)"_s});
}

TEST_F(WhereFrom, TellsPaperThatOtherSettingsFollow)
{
    open();
    showTab(u"setup"_s);
    pick("paperPopup", u"EnvDL"_s);
    EXPECT_EQ(of(u"Paper in the Printer"_s).size(), 1);
    EXPECT_TRUE(of(u"Paper in the Printer"_s).at(0).endsWith(u"(Your choice)"_s));
    EXPECT_EQ(
        of(u"Paper Thickness"_s),
        QStringList{
            u"Paper Thickness: Envelope (Because you chose Paper in the Printer: Envelope DL)"_s});
}

TEST_F(WhereFrom, ShowsWhatDiffersFromTheDefaultsAlone)
{
    open();
    pick("mediaTypePopup", u"Glossy"_s);
    showTab(u"summary"_s);
    part<QCheckBox>("onlyDifferentButton")->click();
    const QStringList shown = lines();
    EXPECT_EQ(shown.filter(u"Media Type"_s).size(), 1 + 3) << "and what it has changed";
    EXPECT_TRUE(shown.filter(u"Copies"_s).isEmpty());
    EXPECT_TRUE(shown.filter(u"The printer's default"_s).isEmpty());
    EXPECT_TRUE(shown.contains(u"Color Settings"_s));
}

TEST_F(WhereFrom, IsReadOutWithTheSummary)
{
    open();
    showTab(u"summary"_s);
    EXPECT_TRUE(part<QWidget>("summaryPane")
                    ->accessibleDescription()
                    .contains(u"Media Type: Plain Paper (The printer's default)"_s));
}

} // namespace
