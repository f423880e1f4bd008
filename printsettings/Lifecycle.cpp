#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/AdvancedOptionList.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

std::optional<QStringList> keywordList(const QVariant &entry)
{
    if (entry.isValid() && !entry.isNull())
        return entry.toStringList();
    return std::nullopt;
}

} // namespace

VKInkPrintSetting14PDE::VKInkPrintSetting14PDE() = default;

VKInkPrintSetting14PDE::~VKInkPrintSetting14PDE() = default;

bool VKInkPrintSetting14PDE::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    if (!VKPrintQualityPDE::initWithCallback(callback))
        return false;
    if (pluginBundle)
        setPPDKeys(keywordList(pluginBundle->infoValue(u"PMPPDKeysSupported"_s)));
    readPageSetup();
    setDefaults();
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(
        this, [this](const Notification &posted) { checkPageSizeChange(posted); },
        u"PMPrintDestinationPaperDidChangeNotification"_s);
    center.addObserver(
        this, [this](const Notification &posted) { checkDuplexChange(posted); },
        u"PMPrintDuplexChangedNotification"_s);
    return true;
}

QString VKInkPrintSetting14PDE::panelName() const
{
    return localized("Print Setting");
}

void VKInkPrintSetting14PDE::willShow()
{
    VKPrintQualityPDE::willShow();
    checkDuplex();
    updateUI();
}

void VKInkPrintSetting14PDE::PPDOptionKeyValueDidChange(const QString &keyword,
                                                        const QString &choice)
{
    VKPrintQualityPDE::PPDOptionKeyValueDidChange(keyword, choice);
    // A medium that was chosen elsewhere gets the same rules as one picked here.
    if (keyword == "VKMediaType"_L1)
        requestNewOutputBin(mediaTypePopup);
}

void VKInkPrintSetting14PDE::connectView(ViewConnections &connections)
{
    VKPrintQualityPDE::connectView(connections);
    connections.outlet(u"resolutionPopup"_s, resolutionPopup);
    connections.outlet(u"mediaTypePopup"_s, mediaTypePopup);
    connections.outlet(u"paperThickPopup"_s, paperThickPopup);
    connections.outlet(u"paperFeedPopup"_s, paperFeedPopup);
    connections.outlet(u"monoColorPopup"_s, monoColorPopup);
    connections.outlet(u"slowDryButton"_s, slowDryButton);
    connections.outlet(u"biDirButton"_s, biDirButton);
    connections.outlet(u"mirrorButton"_s, mirrorButton);
    connections.outlet(u"reverseButton"_s, reverseButton);
    connections.outlet(u"jpegPopup"_s, jpegPopup);
    connections.outlet(u"duplexPopup"_s, duplexPopup);
    connections.outlet(u"vertLineAlignA3Button"_s, vertLineAlignA3Button);
    connections.outlet(u"vertLineAlignA4Button"_s, vertLineAlignA4Button);
    connections.outlet(u"vertLineAlignOtherButton"_s, vertLineAlignOtherButton);
    connections.outlet(u"vertLineAlignQM43Button"_s, vertLineAlignQM43Button);
    connections.outlet(u"resolutionLabel"_s, resolutionLabel);
    connections.outlet(u"mediaTypeLabel"_s, mediaTypeLabel);
    connections.outlet(u"paperThickLabel"_s, paperThickLabel);
    connections.outlet(u"paperFeedLabel"_s, paperFeedLabel);
    connections.outlet(u"monoColorLabel"_s, monoColorLabel);
    connections.outlet(u"jpegLabel"_s, jpegLabel);
    connections.outlet(u"duplexLabel"_s, duplexLabel);
    connections.outlet(u"optionLabel"_s, optionLabel);
    connections.outlet(u"advancedTabView"_s, advancedTabView);
    connections.outlet(u"advancedTableView"_s, advancedTableView);
}

QString VKInkPrintSetting14PDE::inspectedClassName() const
{
    return u"VKInkPrintSetting14PDE"_s;
}

QString VKInkPrintSetting14PDE::inspectedName() const
{
    return u"print"_s;
}
