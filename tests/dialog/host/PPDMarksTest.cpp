#include "dialog/host/PPDMarks.h"

#include "dialog/host/PPDFile.h"
#include "platform/ppd/PPDText.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

void PrintTo(const PPDMark &mark, std::ostream *out)
{
    *out << mark.keyword.toStdString() << '=' << mark.choice.toStdString();
}

namespace {

using Marks = QList<PPDMark>;

/// The PPD of the text, with the marks that it has by default.
class MarksOf : public testing::Test
{
protected:
    void open(const QByteArray &text)
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"the.ppd"_s);
        writeFile(path, text);
        auto opened = openPPD(path);
        ASSERT_TRUE(opened) << opened.sentence().toStdString();
        m_opened = *std::move(opened);
    }

    Marks changed() { return changedMarks(m_opened.ppd.get(), m_opened.defaults); }

    OpenedPPD m_opened;
};

/// The keyword in two groups, each with a default of its own.
QByteArray inTwoGroups()
{
    const auto group = [](const QByteArray &name, const QByteArray &choice) {
        return "*OpenGroup: " + name + "\n*OpenUI *Finish: PickOne\n*DefaultFinish: " + choice +
               "\n*Finish Matt: \"\"\n*Finish Shiny: \"\"\n*CloseUI: *Finish\n*CloseGroup: " +
               name + '\n';
    };
    return PPDSource().text() + group("One", "Matt") + group("Two", "Shiny");
}

TEST_F(MarksOf, APPDStandInItsOrderWithoutPageRegion)
{
    open(smallPrinter().text());
    EXPECT_EQ(m_opened.defaults, (Marks{{u"PageSize"_s, u"A4"_s},
                                        {u"Duplex"_s, u"None"_s},
                                        {u"Finish"_s, u"Matt"_s},
                                        {u"Weight"_s, u"Light"_s}}));
}

TEST_F(MarksOf, AKeywordInTwoGroupsAreOne)
{
    open(inTwoGroups());
    EXPECT_EQ(m_opened.defaults.size(), 1);
    EXPECT_EQ(changed(), Marks());
    const QString other = m_opened.defaults[0].choice == u"Matt" ? u"Shiny"_s : u"Matt"_s;
    ASSERT_TRUE(forceChoice(m_opened.ppd.get(), u"Finish"_s, other));
    EXPECT_EQ(changed(), (Marks{{u"Finish"_s, other}}));
}

TEST_F(MarksOf, ADefaultInOtherLettersAreThatChoice)
{
    open(PPDSource().optionWithDefault("Finish", {"Matt", "Shiny"}, "SHINY").text());
    EXPECT_EQ(m_opened.defaults, (Marks{{u"Finish"_s, u"Shiny"_s}}));
    EXPECT_EQ(changed(), Marks());
}

TEST_F(MarksOf, ADefaultThatIsNoChoiceAreNone)
{
    open(PPDSource().optionWithDefault("Finish", {"Matt", "Shiny"}, "Rough").text());
    EXPECT_EQ(changed(), Marks());
    ASSERT_TRUE(forceChoice(m_opened.ppd.get(), u"Finish"_s, u"Shiny"_s));
    EXPECT_EQ(changed(), (Marks{{u"Finish"_s, u"Shiny"_s}}));
}

TEST_F(MarksOf, AChoiceThatIsTakenBackAreUnchanged)
{
    open(smallPrinter().text());
    ASSERT_TRUE(forceChoice(m_opened.ppd.get(), u"Finish"_s, u"Shiny"_s));
    EXPECT_EQ(changed(), (Marks{{u"Finish"_s, u"Shiny"_s}}));
    ASSERT_TRUE(forceChoice(m_opened.ppd.get(), u"Finish"_s, u"Matt"_s));
    EXPECT_EQ(changed(), Marks());
}

TEST_F(MarksOf, AChoiceInOtherLettersAreAsThePPDSpellsIt)
{
    open(smallPrinter().text());
    ASSERT_TRUE(forceChoice(m_opened.ppd.get(), u"finish"_s, u"SHINY"_s));
    EXPECT_EQ(changed(), (Marks{{u"Finish"_s, u"Shiny"_s}}));
    EXPECT_TRUE(markChoice(m_opened.ppd.get(), u"FINISH"_s, u"matt"_s));
    EXPECT_EQ(changed(), Marks());
}

/// Options of which several choices may be marked at once.
class SeveralMarks : public MarksOf
{
protected:
    SeveralMarks()
    {
        open(PPDSource()
                 .option("Finish", {"Matt", "Shiny", "Coarse"})
                 .option("Weight", {"Light", "Heavy"})
                 .constraint("Finish Shiny", "Weight Heavy")
                 .text()
                 .replace("PickOne", "PickMany"));
    }

    QStringList marked(const char *keyword)
    {
        QStringList marked;
        const ppd_option_t *option = ppdFindOption(m_opened.ppd.get(), keyword);
        for (int index = 0; index < option->num_choices; ++index) {
            if (option->choices[index].marked)
                marked << ppdName(option->choices[index].choice);
        }
        return marked;
    }
};

TEST_F(SeveralMarks, GiveWayToAPick)
{
    ppdMarkOption(m_opened.ppd.get(), "Finish", "Coarse");
    ASSERT_EQ(marked("Finish"), (QStringList{u"Matt"_s, u"Coarse"_s}));
    EXPECT_TRUE(markChoice(m_opened.ppd.get(), u"Finish"_s, u"Shiny"_s));
    EXPECT_EQ(marked("Finish"), QStringList{u"Shiny"_s});
    EXPECT_EQ(markedChoice(m_opened.ppd.get(), u"Finish"_s), u"Shiny"_s);
    EXPECT_TRUE(markChoice(m_opened.ppd.get(), u"Finish"_s, u"Matt"_s));
    EXPECT_EQ(markedChoice(m_opened.ppd.get(), u"Finish"_s), u"Matt"_s);
}

TEST_F(SeveralMarks, GiveWayToAChoiceOfTheDialogs)
{
    EXPECT_TRUE(forceChoice(m_opened.ppd.get(), u"Finish"_s, u"Coarse"_s));
    EXPECT_EQ(marked("Finish"), QStringList{u"Coarse"_s});
    EXPECT_EQ(changed(), (Marks{{u"Finish"_s, u"Coarse"_s}}));
}

TEST_F(SeveralMarks, AreMadeTogetherAndToldTogether)
{
    EXPECT_TRUE(forceChoice(m_opened.ppd.get(), u"Finish"_s, u"coarse,Matt"_s));
    EXPECT_EQ(marked("Finish"), (QStringList{u"Matt"_s, u"Coarse"_s}));
    EXPECT_EQ(changed(), (Marks{{u"Finish"_s, u"Matt,Coarse"_s}}));
    for (const QString &bad : {u"Matt,Silk"_s, u"Matt,"_s, u","_s, QString()})
        EXPECT_FALSE(forceChoice(m_opened.ppd.get(), u"Finish"_s, bad)) << bad.toStdString();
    EXPECT_EQ(changed(), (Marks{{u"Finish"_s, u"Matt,Coarse"_s}}));
}

TEST_F(MarksOf, AnOptionOfOneChoiceAreNeverSeveral)
{
    open(smallPrinter().text());
    EXPECT_FALSE(forceChoice(m_opened.ppd.get(), u"Finish"_s, u"Matt,Shiny"_s));
    EXPECT_EQ(changed(), Marks());
}

TEST_F(SeveralMarks, StandWhereAPickIsRefused)
{
    ppdMarkOption(m_opened.ppd.get(), "Finish", "Coarse");
    ASSERT_TRUE(forceChoice(m_opened.ppd.get(), u"Weight"_s, u"Heavy"_s));
    EXPECT_FALSE(markChoice(m_opened.ppd.get(), u"Finish"_s, u"Shiny"_s));
    EXPECT_EQ(marked("Finish"), (QStringList{u"Matt"_s, u"Coarse"_s}));
    EXPECT_TRUE(forceChoice(m_opened.ppd.get(), u"Finish"_s, u"Coarse"_s));
    EXPECT_EQ(markedChoice(m_opened.ppd.get(), u"Finish"_s), u"Coarse"_s);
}

} // namespace
