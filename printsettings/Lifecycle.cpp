#include "platform/printmanager/PMNotifications.h"
#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/PrintControls.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

VKInkPrintSetting14PDE::VKInkPrintSetting14PDE() : VKPrintQualityPDE(kPrintControls) {}

VKInkPrintSetting14PDE::~VKInkPrintSetting14PDE() = default;

bool VKInkPrintSetting14PDE::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    if (!VKPrintQualityPDE::initWithCallback(callback))
        return false;
    takeKeywordList(u"PMPPDKeysSupported"_s);
    readPageSetup();
    setDefaults();
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(
        this, [this](const Notification &posted) { checkPageSizeChange(posted); },
        kPMPaperDidChangeNotification);
    center.addObserver(
        this, [this](const Notification &posted) { checkDuplexChange(posted); },
        kPMDuplexDidChangeNotification);
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
    // The controls that the rules reach for by themselves.
    connections.outlet(u"resolutionPopup"_s, resolutionPopup);
    connections.outlet(u"mediaTypePopup"_s, mediaTypePopup);
    connections.outlet(u"paperThickPopup"_s, paperThickPopup);
    connections.outlet(u"paperFeedPopup"_s, paperFeedPopup);
    connections.outlet(u"jpegPopup"_s, jpegPopup);
    connections.outlet(u"slowDryButton"_s, slowDryButton);
    connections.outlet(u"biDirButton"_s, biDirButton);
    connections.outlet(u"mirrorButton"_s, mirrorButton);
    connections.outlet(u"jpegLabel"_s, jpegLabel);
    m_advanced.connect(connections);
}

QString VKInkPrintSetting14PDE::inspectedClassName() const
{
    return u"VKInkPrintSetting14PDE"_s;
}

QString VKInkPrintSetting14PDE::shortName() const
{
    return u"print"_s;
}
