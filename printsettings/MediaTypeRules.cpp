#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/pde/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/MediaQuality.h"
#include "printsettings/PaperKind.h"
#include "printsettings/PaperNames.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPrintSettingNotification = "VKInkPrintSettingNotification"_L1;
constexpr int kBorderlessLetterModelNumber = 12;

void setTicked(QCheckBox *box, bool ticked)
{
    if (box)
        box->setChecked(ticked);
}

} // namespace

QStringList VKInkPrintSetting14PDE::allowedQuality(const QString &mediaType)
{
    const AllowedQualities allowed =
        allowedQualities(mediaType, hasFlag(DiscPaper), hasFlag(DuplexOn));
    if (!allowed.replacement.isNull()) {
        setAndMarkValue(allowed.replacement, u"VKMediaType"_s);
        setDefaultQuality(allowed.replacement);
    }
    return allowed.qualities;
}

QString VKInkPrintSetting14PDE::defaultQualityForMediaType(const QString &mediaType) const
{
    return defaultQuality(mediaType, paperName);
}

void VKInkPrintSetting14PDE::setDefaultQuality(const QString &mediaType)
{
    setAndMarkValue(defaultQualityForMediaType(mediaType), u"VKResolution"_s);
}

void VKInkPrintSetting14PDE::setDefaults()
{
    for (const QString &keyword : managedKeywords())
        restoreDefault(keyword);
}

void VKInkPrintSetting14PDE::restoreDefault(const QString &keyword)
{
    const ppd_option_t *option = findOption(ppd, keyword);
    if (!option)
        return;
    const QString defaultChoice = ppdName(option->defchoice);
    const QString pending = pendingValue(keyword);
    // A missing value is not the empty name of a default that the PPD does not give.
    if (!pending.isNull() && pending == defaultChoice)
        return;
    const QString marked = markedChoice(ppd, keyword);
    if (marked.isNull()) {
        if (pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, defaultChoice))
            recordPendingValue(keyword, defaultChoice);
    } else if (marked == defaultChoice) {
        // The mark was put back to the default behind the panel: an envelope keeps its values.
        if (keyword == "VKColorPaperThick"_L1 && hasFlag(EnvelopePaper))
            setAndMarkValue(u"Env"_s, keyword);
        else if (keyword == "VKBiDir"_L1 && hasFlag(BiDirLeftAlone))
            setAndMarkValue(u"OFF"_s, keyword);
    }
}

void VKInkPrintSetting14PDE::canSelectColorMode()
{
    setFlag(MonoColorMode, pendingValue(u"VKMonoColor"_s) == "Mono"_L1);
    NotificationCenter::defaultCenter().post(kPrintSettingNotification,
                                             pdePluginCallbackObject.get(),
                                             QVariantMap{
                                                 {u"VKMonoColor"_s, hasFlag(MonoColorMode)},
                                                 {u"PointTo"_s, u"VKMonoColor"_s},
                                             });
}

void VKInkPrintSetting14PDE::canSelectJpegPrint()
{
    setFlag(JpegUnavailable, false);
}

void VKInkPrintSetting14PDE::checkUIStateWithMediaType(bool applyDefaults)
{
    // Held for all the steps: the qualities may replace the pending medium meanwhile.
    const QString mediaType = selectedMediaType();
    applySlowDrying(mediaType, applyDefaults);
    applyQualities(mediaType, applyDefaults);
    if (applyDefaults)
        setTicked(biDirButton, isKindOfPlainPaper(mediaType));
    // Both are told, in this order: for "HagakiAtena" they differ, and the second one holds. The
    // other panel's choices offered to the dialog depend on both.
    postNaturalColorMatching(mediaType != "Plain"_L1, applyDefaults);
    postNaturalColorMatching(!isDefaultMediaTypeForVividColorMode(mediaType), applyDefaults);
    setFlag(TransparenciesMedium, mediaType == "Transparencies"_L1);
    applyTray2(mediaType);
}

void VKInkPrintSetting14PDE::applySlowDrying(const QString &mediaType, bool applyDefaults)
{
    if (!hasFlag(VendorColorMatching)) {
        setFlag(SlowDryingUnavailable, true);
        return;
    }
    const bool addressSide = mediaType == "HagakiAtena"_L1;
    setFlag(SlowDryingUnavailable, mediaType != "Plain"_L1 && !addressSide);
    if (applyDefaults)
        setTicked(slowDryButton, addressSide);
}

void VKInkPrintSetting14PDE::applyQualities(const QString &mediaType, bool applyDefaults)
{
    changeState(resolutionPopup, allowedQuality(mediaType), true, applyDefaults);
    if (!hasFlag(BorderlessPaper))
        return;
    if (isBorderelessForPaperSize(paperName, u"A3"_s))
        changeState(resolutionPopup, {u"PlainFast"_s, u"PlainNormal"_s, u"High"_s}, false, false);
    else
        changeState(resolutionPopup, {u"PlainFast"_s}, false, false);
}

void VKInkPrintSetting14PDE::postNaturalColorMatching(bool natural, bool applyDefaults)
{
    setFlag(NaturalColorMatching, natural);
    if (!applyDefaults)
        return;
    NotificationCenter::defaultCenter().post(kPrintSettingNotification,
                                             pdePluginCallbackObject.get(),
                                             QVariantMap{
                                                 {u"Natural"_s, natural},
                                                 {u"PointTo"_s, u"VKColorMatching"_s},
                                             });
}

void VKInkPrintSetting14PDE::applyTray2(const QString &mediaType)
{
    const ppd_choice_t *tray2 = findChoice(findOption(ppd, u"VKInputSlot"_s), u"Tray2"_s);
    if (!tray2 || !paperFeedPopup)
        return;
    // By its title, alone of all items: a printer may name the second tray's choice otherwise and
    // give it the same text.
    const int index = paperFeedPopup->indexOfTitle(ppdText(tray2->text));
    paperFeedPopup->setItemEnabled(index, mediaType == "Plain"_L1);
}

void VKInkPrintSetting14PDE::checkStateWithPaperFeed()
{
    if (!hasFlag(BorderlessPaper))
        return;
    changeState(mediaTypePopup, {u"Transparencies"_s}, false, false);
    setFlag(TransparenciesMedium, false);
}

bool VKInkPrintSetting14PDE::paperSizeIsCustomEnv()
{
    if (!isCustomPaper(paperName))
        return false;
    const bool envelope = pendingValue(u"VKColorPaperThick"_s) == "Env"_L1;
    setFlag(EnvelopePaper, envelope);
    setFlag(BiDirLeftAlone, envelope);
    return envelope;
}

void VKInkPrintSetting14PDE::changeResolutionLetterB()
{
    VKPrintQualityPDE::changeResolutionLetterB();
    const bool ruledModel = ppd && ppd->model_number == kBorderlessLetterModelNumber;
    if (ruledModel && isBorderelessForPaperSize(paperName, u"Letter"_s))
        setDefaultQuality(u"Plain"_s);
}
