#include "dialog/host/HostCallback.h"
#include "dialog/host/PPDMarks.h"
#include "platform/ppd/PPDText.h"
#include "tests/support/CaseName.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The host of a printer that puts no gloss on heavy paper, and whose tray takes no large paper.
class HostCallbackTest : public testing::Test
{
protected:
    HostCallbackTest()
    {
        m_host.setCallObserver([this](const HostCallback::Call &call) {
            const bool offer = call.kind == HostCallback::Call::Kind::WillChangePPDOptionKeyValue;
            m_calls << (offer ? (call.accepted ? u""_s : u"!"_s) + call.keyword + u'=' + call.choice
                              : u"resized"_s);
        });
    }

    void force(const QString &keyword, const QString &choice)
    {
        ASSERT_TRUE(forceChoice(m_ppd.get(), keyword, choice));
    }

    // "FINISH WEIGHT FEED SIZE", "-" where nothing is marked.
    QString marks() const
    {
        QStringList choices;
        for (const QString &keyword : {u"Finish"_s, u"Weight"_s, u"Feed"_s, u"Size"_s}) {
            const QString choice = markedChoice(m_ppd.get(), keyword);
            choices << (choice.isNull() ? u"-"_s : choice);
        }
        return choices.join(u' ');
    }

    PPDHandle m_ppd = PPDSource()
                          .option("Finish/Finish", {"Matt/Matt", "Shiny/Shiny", "Glassy/Glassy"})
                          .option("Weight/Weight", {"Light/Light", "Heavy/Heavy"})
                          .option("Feed/Feed", {"Hand/Hand", "Tray/Tray"})
                          .option("Size/Size", {"Small/Small", "Large/Large"})
                          .constraint("Finish Shiny", "Weight Heavy")
                          .constraint("Finish Glassy", "Weight Heavy")
                          .constraint("Feed Tray", "Size Large")
                          .open();
    HostCallback m_host{m_ppd.get()};
    QStringList m_calls;
};

struct Offer
{
    const char *behaviour;
    QString keyword;
    QString choice;
    bool accepted;
    QString marksAfter;
};

class OfferedChoice : public HostCallbackTest, public testing::WithParamInterface<Offer>
{};

const Offer kOffers[] = {
    {"OfThePPDIsMarked", u"Finish"_s, u"Shiny"_s, true, u"Shiny Light Hand Small"_s},
    {"ThatIsMarkedIsAcceptedAgain", u"Finish"_s, u"Matt"_s, true, u"Matt Light Hand Small"_s},
    {"OfNoOption", u"Coat"_s, u"Shiny"_s, false, u"Matt Light Hand Small"_s},
    {"ThatTheOptionLacks", u"Finish"_s, u"Rough"_s, false, u"Matt Light Hand Small"_s},
    {"OfAKeywordInAnotherCase", u"finish"_s, u"Shiny"_s, true, u"Shiny Light Hand Small"_s},
    {"InAnotherCase", u"Finish"_s, u"shiny"_s, true, u"Shiny Light Hand Small"_s},
    {"WithoutAKeyword", QString(), u"Shiny"_s, false, u"Matt Light Hand Small"_s},
    {"WithoutAName", u"Finish"_s, QString(), false, u"Matt Light Hand Small"_s},
};

} // namespace

TEST_P(OfferedChoice, IsMarkedExactlyWhereThePPDHasIt)
{
    const Offer &offer = GetParam();
    EXPECT_EQ(m_host.willChangePPDOptionKeyValue(offer.keyword, offer.choice), offer.accepted);
    EXPECT_EQ(marks(), offer.marksAfter);
    EXPECT_EQ(m_calls,
              QStringList{(offer.accepted ? u""_s : u"!"_s) + offer.keyword + u'=' + offer.choice});
}

INSTANTIATE_TEST_SUITE_P(Cases, OfferedChoice, testing::ValuesIn(kOffers), CaseName());

TEST_F(HostCallbackTest, AChoiceThatBringsAConflictIsRefusedAndTheEarlierMarkStands)
{
    force(u"Weight"_s, u"Heavy"_s);
    EXPECT_FALSE(m_host.willChangePPDOptionKeyValue(u"Finish"_s, u"Shiny"_s));
    EXPECT_EQ(marks(), u"Matt Heavy Hand Small"_s);
    EXPECT_EQ(ppdConflicts(m_ppd.get()), 0);
}

TEST_F(HostCallbackTest, ARefusedChoiceLeavesAnOptionWithoutAMarkAsItWas)
{
    force(u"Weight"_s, u"Heavy"_s);
    ppd_choice_t *matt = ppdFindMarkedChoice(m_ppd.get(), "Finish");
    ASSERT_TRUE(matt);
    matt->marked = 0;
    cupsArrayRemove(m_ppd->marked, matt);
    ASSERT_EQ(marks(), u"- Heavy Hand Small"_s);
    EXPECT_FALSE(m_host.willChangePPDOptionKeyValue(u"Finish"_s, u"Shiny"_s));
    EXPECT_EQ(marks(), u"- Heavy Hand Small"_s);
    EXPECT_EQ(ppdConflicts(m_ppd.get()), 0);
}

// A job that came with a conflict must not freeze: only what comes into conflict anew is refused.
TEST_F(HostCallbackTest, AConflictThatWasThereForbidsNothing)
{
    force(u"Finish"_s, u"Shiny"_s);
    force(u"Weight"_s, u"Heavy"_s);
    ASSERT_GT(ppdConflicts(m_ppd.get()), 0);
    EXPECT_TRUE(m_host.willChangePPDOptionKeyValue(u"Finish"_s, u"Shiny"_s)) << "as it is marked";
    EXPECT_TRUE(m_host.willChangePPDOptionKeyValue(u"Finish"_s, u"Glassy"_s)) << "no option more";
    EXPECT_TRUE(m_host.willChangePPDOptionKeyValue(u"Size"_s, u"Large"_s)) << "another option";
    EXPECT_FALSE(m_host.willChangePPDOptionKeyValue(u"Feed"_s, u"Tray"_s)) << "two options more";
    EXPECT_EQ(marks(), u"Glassy Heavy Hand Large"_s);
    EXPECT_TRUE(m_host.willChangePPDOptionKeyValue(u"Weight"_s, u"Light"_s)) << "the way out";
    EXPECT_EQ(ppdConflicts(m_ppd.get()), 0);
}

TEST_F(HostCallbackTest, RefusesWhatItIsToldTo)
{
    m_host.setRefused({u"Finish=Shiny"_s, u"Weight"_s});
    EXPECT_FALSE(m_host.willChangePPDOptionKeyValue(u"Finish"_s, u"Shiny"_s));
    EXPECT_TRUE(m_host.willChangePPDOptionKeyValue(u"Finish"_s, u"Glassy"_s));
    EXPECT_FALSE(m_host.willChangePPDOptionKeyValue(u"Weight"_s, u"Heavy"_s));
    EXPECT_FALSE(m_host.willChangePPDOptionKeyValue(u"Weight"_s, u"Light"_s)) << "marked already";
    EXPECT_EQ(marks(), u"Glassy Light Hand Small"_s);
    EXPECT_EQ(m_calls, (QStringList{u"!Finish=Shiny"_s, u"Finish=Glassy"_s, u"!Weight=Heavy"_s,
                                    u"!Weight=Light"_s}));
}

TEST_F(HostCallbackTest, LacksTheOperationsThatItIsToldToLack)
{
    using enum HostOperation;
    for (const HostOperation lacking :
         {WillChangePPDOptionKeyValue, PrintSettings, PageFormat, PanelViewDidResize}) {
        m_host.setLacking({lacking});
        for (const HostOperation operation :
             {WillChangePPDOptionKeyValue, PrintSettings, PageFormat, PanelViewDidResize})
            EXPECT_EQ(m_host.respondsTo(operation), operation != lacking);
        EXPECT_EQ(m_host.printSettings(), lacking == PrintSettings ? nullptr : &m_host.ticket());
        EXPECT_EQ(m_host.pageFormat(), lacking == PageFormat ? nullptr : &m_host.format());
    }
}

TEST_F(HostCallbackTest, TellsOfAResizedView)
{
    m_host.panelViewDidResize();
    EXPECT_EQ(m_calls, QStringList{u"resized"_s});
}
