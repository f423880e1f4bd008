#include "tests/printsettings/AlertPanel.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(Alerts, ADiscIsConfirmedOnEveryJob)
{
    open();
    session->changePaper(u"120x120mm"_s);
    for (const QString &medium : {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s}) {
        session->mark(u"VKMediaType"_s, medium);
        for (const int button : {0, 1, 0}) {
            session->alerts().expect(AlertAnswers::button(button));
            EXPECT_EQ(panel->checkShouldShowDiscAlert(), button == 0);
            const AlertContent alert = takeAlert();
            EXPECT_EQ(alert.style, AlertStyle::Informational);
            EXPECT_EQ(alert.text, u"DiscPrint Alert"_s);
            EXPECT_EQ(alert.informative, u"DiscPrint Alert2"_s);
            EXPECT_EQ(alert.buttons, QStringList({u"OK"_s, u"Cancel"_s}));
            EXPECT_FALSE(alert.suppression);
        }
    }
    EXPECT_EQ(memory(), QVariantMap());
    EXPECT_NE(panel->loadedView(), nullptr);
}

TEST_F(Alerts, ADiscPaperWithAnotherMarkedMediumPrintsWithoutAnAlert)
{
    open();
    session->changePaper(u"120x120mm"_s);
    session->mark(u"VKMediaType"_s, u"Plain"_s);
    EXPECT_TRUE(panel->checkShouldShowDiscAlert());
    useSample(u"velkaro-px-330c"_s);
    open();
    panel->setFlag(DiscPaper, true);
    EXPECT_TRUE(panel->checkShouldShowDiscAlert());
}

TEST_F(Alerts, ADiscMediumOnAnotherPaperPrintsWithoutAnAlert)
{
    open();
    session->mark(u"VKMediaType"_s, u"PrintableDisc"_s);
    EXPECT_TRUE(panel->checkShouldShowDiscAlert());
}

} // namespace
