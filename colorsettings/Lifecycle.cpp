#include "colorsettings/VKInkColorSettingPDE.h"
#include "panel/PrintSettingChange.h"
#include "platform/printmanager/PMNotifications.h"

#include "colorsettings/ColorControls.h"
#include "colorsettings/ColorTransformer.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/imaging/CIFilter.h"

using namespace Qt::StringLiterals;

VKInkColorSettingPDE::VKInkColorSettingPDE() : VKPrintQualityPDE(kColorControlTable) {}

VKInkColorSettingPDE::~VKInkColorSettingPDE() = default;

bool VKInkColorSettingPDE::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    if (!VKPrintQualityPDE::initWithCallback(callback))
        return false;
    setThePDEName(u"VKInkColorSetting"_s);
    takeKeywordList(u"PMPPDKeysSupportedColor"_s);
    setEffectDefaults();
    restoreEffectValues();
    saveEffectValues();
    ValueTransformer::setValueTransformer(std::make_shared<ColorTransformer>(),
                                          u"VKColorTransformer"_s);
    observeNotifications();
    return true;
}

void VKInkColorSettingPDE::observeNotifications()
{
    auto &center = NotificationCenter::defaultCenter();
    const void *host = pdePluginCallbackObject.get();
    center.addObserver(
        this, [this](const Notification &notification) { printSettingsNotified(notification); },
        kPrintSettingNotification, host);
    // This panel itself receives it, and reads the colour mode from the ticket.
    center.post(kPrintSettingNotification, host);
    center.addObserver(
        this, [this](const Notification &notification) { checkPageSizeChange(notification); },
        kPMPaperDidChangeNotification);
}

QString VKInkColorSettingPDE::panelName() const
{
    return localized("Color Setting");
}

QString VKInkColorSettingPDE::helpBook() const
{
    return u"Velkaro Color Settings Help"_s;
}

void VKInkColorSettingPDE::willShow()
{
    VKPrintQualityPDE::willShow();
    setContent(u"frameHeight"_s, 0.0);
    updateUI();
}

bool VKInkColorSettingPDE::saveValuesAndReturnError(QString *error)
{
    VKPrintQualityPDE::saveValuesAndReturnError(error);
    saveEffectValues();
    return true;
}

void VKInkColorSettingPDE::saveAllValues()
{
    VKPrintQualityPDE::saveAllValues();
    saveEffectValues();
}

void VKInkColorSettingPDE::checkConstraints()
{
    VKPrintQualityPDE::checkConstraints();
    restoreEffectValues();
}

QString VKInkColorSettingPDE::inspectedClassName() const
{
    return u"VKInkColorSettingPDE"_s;
}

QString VKInkColorSettingPDE::shortName() const
{
    return u"color"_s;
}
