#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/EffectRange.h"
#include "colorsettings/EffectVal.h"
#include "colorsettings/rules/EffectTable.h"
#include "panel/TicketValue.h"
#include "platform/imaging/CIFilter.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMPrintSettings.h"

using namespace Qt::StringLiterals;

void VKInkColorSettingPDE::setEffectDefaults()
{
    resetEffectVal();
    if (PPDEffectKeys.isEmpty()) {
        PPDEffectKeys = effectKeywords();
        readEffectDefaults();
        createFilters();
    }
    for (const QString &keyword : std::as_const(PPDEffectKeys))
        setContent(keyword, outputBin().value(keyword));
}

void VKInkColorSettingPDE::readEffectDefaults()
{
    for (const QString &keyword : std::as_const(PPDEffectKeys)) {
        if (const ppd_option_t *option = findOption(ppd, keyword))
            recordPendingValue(keyword, ticketInteger(ppdName(option->defchoice)));
    }
}

void VKInkColorSettingPDE::createFilters()
{
    ccFilter = CIFilter::filterWithName(u"CIColorControls"_s);
    cmFilter = CIFilter::filterWithName(u"CIColorMatrix"_s);
    ccFilter->setValue(refImage(), kCIInputImageKey);
    cmFilter->setValue(refImage(), kCIInputImageKey);
}

void VKInkColorSettingPDE::restoreEffectValues()
{
    const PMPrintSettings *settings = ticket();
    if (!settings)
        return;
    for (const QString &keyword : std::as_const(PPDEffectKeys)) {
        QVariant stored;
        PMPrintSettingsGetValue(settings, effectTicketKey(keyword), &stored);
        recordPendingValue(keyword, effectValueFromTicket(stored));
        setContent(keyword, outputBin().value(keyword));
    }
}

void VKInkColorSettingPDE::saveEffectValues()
{
    PMPrintSettings *settings = ticket();
    if (!settings)
        return;
    for (const QString &keyword : std::as_const(PPDEffectKeys)) {
        if (effectContent)
            recordPendingValue(keyword, contentInteger(keyword));
        PMPrintSettingsSetValue(settings, effectTicketKey(keyword),
                                effectTextForTicket(outputBin().value(keyword)), false);
    }
}

void VKInkColorSettingPDE::revertEffectDialog(QWidget *)
{
    resetEffectVal();
    if (ccFilter)
        ccFilter->setDefaults();
    if (cmFilter)
        cmFilter->setDefaults();
    setContent(u"VKColorEnhancement"_s, false);
    setContent(u"Color"_s, false);
    // The dialog is not asked, and its mark stands until the user sets the switch again.
    recordPendingValue(u"VKColorEnhancement"_s, u"OFF"_s);
    setEffectDefaults();
    redrawEffectImage();
}
