#include "tests/printsettings/AlertPanel.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(Alerts, TheDuplexCheckAcceptsItsPapersAndVetoesAllElse)
{
    open();
    panel->setFlag(DuplexOn, true);
    for (const QString &name : {u"VkA3"_s, u"Postcard"_s, u"A4"_s, u"B4.ShortGrain"_s}) {
        usePaper(name);
        EXPECT_TRUE(panel->checkShouldShowDuplexAlert()) << qPrintable(name);
    }
    for (const QString &name : {u"A4.Fullbleed"_s, u"a4"_s, u"EnvDL"_s, QString()}) {
        usePaper(name);
        session->alerts().expect();
        EXPECT_FALSE(panel->checkShouldShowDuplexAlert()) << qPrintable(name);
        const AlertContent alert = takeAlert();
        EXPECT_EQ(alert.style, AlertStyle::Critical);
        EXPECT_EQ(alert.text, u"Duplex Alert"_s);
        EXPECT_EQ(alert.informative, u"Duplex Alert2"_s);
        EXPECT_EQ(alert.buttons, QStringList({u"OK"_s}));
    }
}

TEST_F(Alerts, TheDuplexCheckVetoesAlsoWhereTwoSidedPrintingIsOff)
{
    open();
    usePaper(u"A4"_s);
    session->alerts().expect();
    EXPECT_FALSE(panel->checkShouldShowDuplexAlert());
    takeAlert();
}

} // namespace
