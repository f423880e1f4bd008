#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/rules/TicketColors.h"
#include "panel/TicketValue.h"
#include "platform/foundation/Notification.h"
#include "platform/printmanager/PMPrintSettings.h"

using namespace Qt::StringLiterals;

namespace {

bool entry(const QVariantMap &userInfo, const QString &key)
{
    return ticketBoolean(userInfo.value(key));
}

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
    if (notification.userInfo)
        followPrintSettings(*notification.userInfo);
    else
        followTicket();
    updateUI();
}

void VKInkColorSettingPDE::followPrintSettings(const QVariantMap &userInfo)
{
    const QString subject = userInfo.value(u"PointTo"_s).toString();
    if (subject == "VKMonoColor"_L1) {
        setFlag(MonoColorMode, entry(userInfo, subject));
    } else if (subject == "VKHalfTonePattern"_L1) {
        const bool diffusion = entry(userInfo, subject);
        setFlag(DiffusionHalftone, diffusion);
        setAndMarkValue(halftoneChoice(diffusion), subject);
    } else if (subject == "VKColorMatching"_L1) {
        setAndMarkValue(matchingChoice(entry(userInfo, u"Natural"_s)), subject);
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
    const QString paper = ticketText(ticket(), u"com.apple.print.PageToPaperMappingMediaName"_s);
    if (forcesNaturalMatching(paper)) {
        const QString natural = matchingChoice(true);
        recordPendingValue(u"VKColorMatching"_s, natural);
        pdePluginCallbackObject->willChangePPDOptionKeyValue(u"VKColorMatching"_s, natural);
    }
    updateUI();
}
