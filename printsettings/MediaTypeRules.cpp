#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/pde/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/rules/DefaultChoices.h"
#include "printsettings/rules/MediaQuality.h"
#include "printsettings/rules/MediumEffects.h"
#include "printsettings/rules/PaperChange.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPrintSettingNotification = "VKInkPrintSettingNotification"_L1;

void setTicked(QCheckBox *box, bool ticked)
{
    if (box)
        box->setChecked(ticked);
}

// By its title, alone of all items: a printer may name the second tray's choice otherwise and give
// it the same text.
void enableTray2(PopUpButton *paperFeed, ppd_file_t *ppd, bool enabled)
{
    const ppd_choice_t *tray2 = findChoice(findOption(ppd, u"VKInputSlot"_s), u"Tray2"_s);
    if (tray2 && paperFeed)
        paperFeed->setItemEnabled(paperFeed->indexOfTitle(ppdText(tray2->text)), enabled);
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
    const KeywordDefault step = keywordDefault(
        {keyword, pendingValue(keyword), markedChoice(ppd, keyword), ppdName(option->defchoice),
         hasFlag(EnvelopePaper), hasFlag(BiDirLeftAlone)});
    if (step.step == KeywordDefault::Step::SetAndMark)
        setAndMarkValue(step.value, keyword);
    else if (step.step == KeywordDefault::Step::OfferDefault &&
             pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, step.value))
        recordPendingValue(keyword, step.value);
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
    const MediumEffects effects = mediumEffects(mediaType);
    applySlowDrying(mediaType, applyDefaults);
    applyQualities(mediaType, applyDefaults);
    if (applyDefaults)
        setTicked(biDirButton, effects.bothDirections);
    // Both are told, in this order: the other panel's choices offered to the dialog depend on both.
    postNaturalColorMatching(effects.naturalAtFirst, applyDefaults);
    postNaturalColorMatching(effects.natural, applyDefaults);
    setFlag(TransparenciesMedium, effects.transparencies);
    enableTray2(paperFeedPopup, ppd, effects.tray2);
}

void VKInkPrintSetting14PDE::applySlowDrying(const QString &mediaType, bool applyDefaults)
{
    const SlowDrying drying = slowDrying(mediaType, hasFlag(VendorColorMatching));
    setFlag(SlowDryingUnavailable, !drying.available);
    if (applyDefaults && drying.defaultTick)
        setTicked(slowDryButton, *drying.defaultTick);
}

void VKInkPrintSetting14PDE::applyQualities(const QString &mediaType, bool applyDefaults)
{
    changeState(resolutionPopup, allowedQuality(mediaType), true, applyDefaults);
    if (hasFlag(BorderlessPaper))
        changeState(resolutionPopup, unavailableWithoutBorders(paperName), false, false);
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

void VKInkPrintSetting14PDE::checkStateWithPaperFeed()
{
    if (!hasFlag(BorderlessPaper))
        return;
    changeState(mediaTypePopup, {u"Transparencies"_s}, false, false);
    setFlag(TransparenciesMedium, false);
}

bool VKInkPrintSetting14PDE::paperSizeIsCustomEnv()
{
    const std::optional<bool> envelope =
        customEnvelope(paperName, pendingValue(u"VKColorPaperThick"_s));
    if (!envelope)
        return false;
    setFlag(EnvelopePaper, *envelope);
    setFlag(BiDirLeftAlone, *envelope);
    return *envelope;
}

void VKInkPrintSetting14PDE::changeResolutionLetterB()
{
    VKPrintQualityPDE::changeResolutionLetterB();
    if (ppd && resetsQuality(paperName, ppd->model_number))
        setDefaultQuality(u"Plain"_s);
}
