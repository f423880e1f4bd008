#include "panel/VKPrintQualityPDE.h"

#include "panel/PPDWords.h"
#include "panel/TicketValue.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "platform/printmanager/PMTicketKeys.h"

#include <QtWidgets/QAbstractButton>

using namespace Qt::StringLiterals;

namespace {

bool isColorPanel(const QString &panelName)
{
    return panelName == "VKInkColorSetting"_L1;
}

} // namespace

void VKPrintQualityPDE::checkFax()
{
    setFlag(FaxOutput, markedChoice(ppd, kOutputKeyword) == kFaxChoice);
}

void VKPrintQualityPDE::checkColorSync()
{
    if (!ppd || !ppdFindAttr(ppd, kPMCustomColorMatchingAttribute, nullptr)) {
        setFlag(VendorColorMatching, false);
        return;
    }
    if (!ticket())
        return;
    QVariant mode;
    const bool known = PMPrintSettingsGetValue(ticket(), kPMColorMatchingModeKey, &mode) == noErr;
    setFlag(VendorColorMatching, !known || mode.toString() != kPMApplicationColorMatching);
}

QString VKPrintQualityPDE::optionName() const
{
    return isColorPanel(m_thePDEName) ? u"advancedcolorItem"_s : u"advancedItem"_s;
}

QString VKPrintQualityPDE::optionStateKey() const
{
    return isColorPanel(m_thePDEName) ? u"com.velkaro.print.PrintSettings.advancedcolorItem"_s
                                      : u"com.velkaro.print.PrintSettings.advancedItem"_s;
}

void VKPrintQualityPDE::saveOptionState()
{
    const bool unfolded = effectContent && effectContent->boolValue(optionName());
    PMPrintSettingsSetValue(ticket(), optionStateKey(), unfolded, false);
}

void VKPrintQualityPDE::restoreOptionState()
{
    QVariant stored;
    const bool known = PMPrintSettingsGetValue(ticket(), optionStateKey(), &stored) == noErr;
    if (!effectContent)
        return;
    // A ticket without the key belongs to a new job: its sections are folded.
    const bool unfolded = known && ticketBoolean(stored);
    if (effectContent->boolValue(optionName()) == unfolded)
        return;
    effectContent->setValue(optionName(), unfolded);
    toggleShowOption(optionButton);
}
