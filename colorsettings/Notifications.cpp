#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/rules/TicketColors.h"
#include "panel/PrintSettingChange.h"
#include "platform/foundation/Notification.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "platform/printmanager/PMTicketKeys.h"

using namespace Qt::StringLiterals;

namespace {

// The value of the ticket; null when it has none.
QString ticketText(const PMPrintSettings *ticket, const QString &key)
{
    QVariant value;
    if (PMPrintSettingsGetValue(ticket, key, &value) != noErr)
        return {};
    const QString text = value.toString();
    return text.isNull() ? u""_s : text;
}

} // namespace

void VKInkColorSettingPDE::printSettingsNotified(const Notification &notification)
{
    if (!notification.userInfo)
        followTicket();
    else if (const auto change = printSettingChange(*notification.userInfo))
        followPrintSettings(*change);
    updateUI();
}

void VKInkColorSettingPDE::followPrintSettings(const PrintSettingChange &change)
{
    const QString keyword = keywordOf(change.subject);
    switch (change.subject) {
    case PrintSettingChange::Subject::MonoColor:
        setFlag(MonoColorMode, change.on);
        break;
    case PrintSettingChange::Subject::HalfTonePattern:
        setFlag(DiffusionHalftone, change.on);
        setAndMarkValue(halftoneChoice(change.on), keyword);
        break;
    case PrintSettingChange::Subject::ColorMatching:
        setAndMarkValue(matchingChoice(change.on), keyword);
        break;
    }
}

void VKInkColorSettingPDE::followTicket()
{
    const auto follow = [this](ImageModeFlag flag, std::optional<bool> on) {
        if (on)
            setFlag(flag, *on);
    };
    follow(MonoColorMode, monoOfChoice(ticketText(ticket(), u"VKMonoColor"_s)));
    follow(DiffusionHalftone, diffusionOfChoice(ticketText(ticket(), u"VKHalfTonePattern"_s)));
    follow(NaturalColorMatching, naturalOfChoice(ticketText(ticket(), u"VKColorMatching"_s)));
}

void VKInkColorSettingPDE::checkPageSizeChange(const Notification &)
{
    const QString paper = ticketText(ticket(), kPMMappedPaperKey);
    if (forcesNaturalMatching(paper)) {
        const QString natural = matchingChoice(true);
        recordPendingValue(u"VKColorMatching"_s, natural);
        pdePluginCallbackObject->willChangePPDOptionKeyValue(u"VKColorMatching"_s, natural);
    }
    updateUI();
}
