#include "tests/panel/PanelFixture.h"

#include "dialog/host/PPDMarks.h"
#include "platform/foundation/PreferredLanguages.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/Files.h"
#include "tests/support/ViewText.h"

using namespace Qt::StringLiterals;

namespace {

PPDHandle testPrinter()
{
    const QByteArrayList offOn{"OFF/Off", "ON/On"};
    return PPDSource()
        .attribute("APSupportsCustomColorMatching", "true")
        .option("VKMediaType/Media & Type",
                {"Plain/Plain <3C>b<3E>Paper<3C>/b<3E>", "PlainDuplex/Plain, Two-Sided", "Glossy",
                 "HagakiUra/Hagaki Ura", "HagakiAtena/hagaki Atena", "Short/Hagak"})
        .option("VKResolution/Quality", {"Normal", "Best/Best & Slow"})
        .option("VKColorMatching/Color & Matching", {"Natural", "Vivid", "None/None & Nothing"})
        .option("MirrorPrint/Mirror & Back", {"False/No", "True/Yes"})
        .option("VKBiDir/Both Ways", offOn)
        .option("VKSlowDrying/Slow Drying", offOn)
        .option("VKVertLineAlignOther/Align Lines", offOn)
        .option("VKNoControl/No Control", {"A/Choice A", "B/Choice B"})
        .option("VKOutput/Output", {"PRINTER/Printer", "FAX/Fax", "None"})
        .open();
}

QByteArray viewOfThePanel()
{
    const QByteArray action = "action=requestNewOutputBin:";
    const QByteArray widgets =
        viewWidget("PopUpButton", "mediaTypePopup", {action, "tag=10"}) +
        viewWidget("PopUpButton", "resolutionPopup", {action, "tag=5"}) +
        viewWidget("RadioMatrix", "matrix", {action}) +
        viewWidget("QCheckBox", "mirrorButton", {action}) +
        viewWidget("QCheckBox", "biDirButton", {action}) +
        viewWidget("QCheckBox", "slowDryButton", {action}) +
        viewWidget("QCheckBox", "alignButton", {action}) + viewWidget("QLabel", "mediaTypeLabel") +
        viewWidget("QLabel", "resolutionLabel") + viewWidget("QGroupBox", "matrixBox") +
        viewWidget("ImageView", "imageView") + viewWidget("QWidget", "freePart") +
        viewWidget("QPushButton", "helpButton", {"action=showHelpFile:"}) +
        viewWidget("DisclosureButton", "optionButton",
                   {"action=toggleShowOption:", "bind.value=advancedItem"});
    return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"TestView\">" +
           viewWidget("QWidget", "panelView", {}, widgets) + "</widget></ui>";
}

constexpr KeywordControl kTestControls[] = {
    {"VKMediaType"_L1, "mediaTypePopup"_L1, "mediaTypeLabel"_L1},
    {"VKResolution"_L1, "resolutionPopup"_L1, "resolutionLabel"_L1},
    {"VKColorMatching"_L1, "matrix"_L1, "matrixBox"_L1},
    {"MirrorPrint"_L1, "mirrorButton"_L1, {}},
    {"VKBiDir"_L1, "biDirButton"_L1, {}},
    {"VKSlowDrying"_L1, "slowDryButton"_L1, {}},
    {"VKVertLineAlignOther"_L1, "alignButton"_L1, {}},
};

} // namespace

TestPanel::TestPanel() : VKPrintQualityPDE(kTestControls) {}

void TestPanel::setDefaults()
{
    asked << u"setDefaults"_s;
    if (defaults)
        defaults();
}

void TestPanel::checkUIConstraints()
{
    VKPrintQualityPDE::checkUIConstraints();
    if (constraints)
        constraints();
}

void TestPanel::toggleShowOption(QWidget *sender)
{
    asked << (sender == optionButton ? u"toggleShowOption"_s : u"toggle by another"_s);
}

bool TestPanel::saveValuesAndReturnError(QString *error)
{
    asked << u"saveValues"_s;
    return VKPrintQualityPDE::saveValuesAndReturnError(error);
}

void TestPanel::connectView(ViewConnections &connections)
{
    VKPrintQualityPDE::connectView(connections);
    connections.outlet(u"mediaTypePopup"_s, mediaTypePopup);
    connections.outlet(u"resolutionPopup"_s, resolutionPopup);
    connections.outlet(u"matrix"_s, matrix);
    connections.outlet(u"mirrorButton"_s, mirrorButton);
    connections.outlet(u"biDirButton"_s, biDirButton);
    connections.outlet(u"slowDryButton"_s, slowDryButton);
    connections.outlet(u"alignButton"_s, alignButton);
    connections.outlet(u"mediaTypeLabel"_s, mediaTypeLabel);
    connections.outlet(u"resolutionLabel"_s, resolutionLabel);
    connections.outlet(u"matrixBox"_s, matrixBox);
    connections.outlet(u"imageView"_s, imageView);
    connections.outlet(u"freePart"_s, freePart);
}

PanelFixture::PanelFixture()
{
    UserDefaults::standardUserDefaults().setFolder(QString());
    setPreferredLanguages({u"en"_s});
    writeBundleFile(u"Info.json"_s, R"({"CFBundleIdentifier": "com.velkaro.test",
        "CFBundleName": "TestView", "CFBundleHelpBookName": "Test Help"})");
    writeBundleFile(u"Resources/TestView.ui"_s, viewOfThePanel());
    bundle = Bundle::open(folder.filePath(u"PlugIns/Test.bundle"_s));
    Bundle::setMainBundle(bundle);
    usePrinter(testPrinter());
    panel = std::make_unique<TestPanel>();
}

void PanelFixture::usePrinter(PPDHandle printer)
{
    ppd = std::move(printer);
    host = std::make_shared<HostCallback>(ppd.get());
    host->setCallObserver([this](const HostCallback::Call &call) {
        if (call.kind == HostCallback::Call::Kind::PanelViewDidResize)
            ++resizes;
        else
            calls << (call.accepted ? QString() : u"!"_s) + call.keyword + u'=' + call.choice;
    });
}

PanelFixture::~PanelFixture()
{
    panel.reset();
    setKeyWindow(nullptr);
    Bundle::setMainBundle(nullptr);
    setPreferredLanguages({});
}

QString PanelFixture::bundleFile(const QString &name) const
{
    return folder.filePath(u"PlugIns/Test.bundle/"_s + name);
}

void PanelFixture::writeBundleFile(const QString &name, const QByteArray &content)
{
    writeFile(bundleFile(name), content);
}

QStringList PanelFixture::allKeywords()
{
    return {u"VKMediaType"_s, u"VKResolution"_s, u"VKColorMatching"_s,      u"MirrorPrint"_s,
            u"VKBiDir"_s,     u"VKSlowDrying"_s, u"VKVertLineAlignOther"_s, u"VKNoControl"_s};
}

TestPanel &PanelFixture::createPanel()
{
    EXPECT_TRUE(panel->initWithCallback(host));
    panel->setPPDKeys(allKeywords());
    panel->restoreValuesAndReturnError(nullptr);
    panel->asked.clear();
    calls.clear();
    return *panel;
}

TestPanel &PanelFixture::showPanel()
{
    createPanel();
    EXPECT_NE(panel->panelView(), nullptr);
    panel->willShow();
    panel->updateUI();
    panel->saveAllValues();
    panel->asked.clear();
    calls.clear();
    return *panel;
}

void PanelFixture::mark(const QString &keyword, const QString &choice)
{
    ASSERT_TRUE(forceChoice(ppd.get(), keyword, choice));
}

QString PanelFixture::marked(const QString &keyword) const
{
    return markedChoice(ppd.get(), keyword);
}
