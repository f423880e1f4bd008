#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPanelInspection.h"
#include "plugin/VKInkQuality14PDEPlugIn.h"
#include "tests/support/PanelSession.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PlugIn : public testing::Test
{
protected:
    QStringList panelsFor(const QString &type)
    {
        QStringList classes;
        for (const auto &panel : plugIn.PDEPanelsForType(type, session.host()))
            classes << dynamic_cast<PDEPanelInspection &>(*panel).inspectedClassName();
        return classes;
    }

    PanelSession session{openSample(u"velkaro-px-t900"_s)};
    VKInkQuality14PDEPlugIn plugIn;
};

const QString kPrintDialog = u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_s;

TEST_F(PlugIn, IsReadyWithAnyBundleAndWithNone)
{
    EXPECT_TRUE(plugIn.initWithBundle(&session.bundle()));
    EXPECT_TRUE(plugIn.initWithBundle(nullptr));
}

TEST_F(PlugIn, GivesAPrintDialogPrintSettingsBeforeColorSettings)
{
    EXPECT_EQ(panelsFor(kPrintDialog),
              QStringList({u"VKInkPrintSetting14PDE"_s, u"VKInkColorSettingPDE"_s}));
}

TEST_F(PlugIn, GivesOtherDialogsNothing)
{
    for (const QString &type : {kPrintDialog.toLower(), u"PageSetup"_s, u""_s, QString()}) {
        EXPECT_EQ(panelsFor(type), QStringList()) << qPrintable(type);
        EXPECT_EQ(session.log().take(), QStringList());
    }
}

TEST_F(PlugIn, GivesNothingToADialogThatCannotMarkChoices)
{
    session.host()->setLacking({HostOperation::WillChangePPDOptionKeyValue});
    EXPECT_EQ(panelsFor(kPrintDialog), QStringList());
}

} // namespace
