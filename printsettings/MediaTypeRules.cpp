#include "panel/PrintSettingChange.h"
#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/rules/ColorModes.h"
#include "printsettings/rules/DefaultChoices.h"
#include "printsettings/rules/MediaQuality.h"
#include "printsettings/rules/MediumEffects.h"
#include "printsettings/rules/PaperChange.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

void setTicked(QCheckBox *box, bool ticked)
{
    if (box)
        box->setChecked(ticked);
}

// Found by its title, unlike every other item: a printer may have another choice with the text of
// the second tray.
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
    KeywordFacts facts;
    facts.keyword = keyword;
    facts.pending = pendingValue(keyword);
    facts.defaultChoice = ppdName(option->defchoice);
    // Most choices are, and looking the mark up costs more than everything else here.
    if (isDefaultPending(facts.pending, facts.defaultChoice))
        return;
    facts.marked = markedChoice(ppd, keyword);
    facts.envelopePaper = hasFlag(EnvelopePaper);
    facts.directionLeftAlone = hasFlag(BiDirLeftAlone);
    applyDefault(keyword, keywordDefault(facts));
}

void VKInkPrintSetting14PDE::applyDefault(const QString &keyword, const KeywordDefault &decided)
{
    using Step = KeywordDefault::Step;
    if (decided.step == Step::SetAndMark)
        setAndMarkValue(decided.value, keyword);
    else if (decided.step == Step::OfferDefault &&
             pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, decided.value))
        recordPendingValue(keyword, decided.value);
}

void VKInkPrintSetting14PDE::canSelectColorMode()
{
    setFlag(MonoColorMode, isMonoMode(pendingValue(u"VKMonoColor"_s)));
    NotificationCenter::defaultCenter().post(
        kPrintSettingNotification, pdePluginCallbackObject.get(),
        userInfoOf({PrintSettingChange::Subject::MonoColor, hasFlag(MonoColorMode)}));
}

void VKInkPrintSetting14PDE::canSelectJpegPrint()
{
    setFlag(JpegUnavailable, false);
}

void VKInkPrintSetting14PDE::checkUIStateWithMediaType(bool applyDefaults)
{
    // All steps are about the medium that is shown now: allowedQuality() may replace the pending
    // one on the way.
    const QString mediaType = selectedMediaType();
    const MediumEffects effects = mediumEffects(mediaType);
    applySlowDrying(effects, applyDefaults);
    applyQualities(mediaType, applyDefaults);
    if (applyDefaults)
        setTicked(biDirButton, effects.bothDirections);
    // Both are posted, in this order: the Color Settings panel offers the dialog a choice for each.
    postNaturalColorMatching(effects.naturalAtFirst, applyDefaults);
    postNaturalColorMatching(effects.natural, applyDefaults);
    setFlag(TransparenciesMedium, effects.transparencies);
    enableTray2(paperFeedPopup, ppd, effects.tray2);
}

void VKInkPrintSetting14PDE::applySlowDrying(const MediumEffects &effects, bool applyDefaults)
{
    const SlowDrying drying = slowDrying(effects, hasFlag(VendorColorMatching));
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
    NotificationCenter::defaultCenter().post(
        kPrintSettingNotification, pdePluginCallbackObject.get(),
        userInfoOf({PrintSettingChange::Subject::ColorMatching, natural}));
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
