#include "colorsettings/VKInkColorSettingPDE.h"

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
        setAndMarkValue(diffusion ? u"Diffusion"_s : u"Dither"_s, subject);
    } else if (subject == "VKColorMatching"_L1) {
        setAndMarkValue(entry(userInfo, u"Natural"_s) ? u"Natural"_s : u"Vivid"_s, subject);
    }
}

void VKInkColorSettingPDE::followTicket()
{
    const QString mode = ticketText(ticket(), u"VKMonoColor"_s);
    if (!mode.isNull())
        setFlag(MonoColorMode, mode != "Color"_L1);
    const QString halftone = ticketText(ticket(), u"VKHalfTonePattern"_s);
    if (halftone == "Dither"_L1 || halftone == "Diffusion"_L1)
        setFlag(DiffusionHalftone, halftone == "Diffusion"_L1);
    const QString matching = ticketText(ticket(), u"VKColorMatching"_s);
    // "Vivid" leaves the bit as it is: a halftone's name is what clears it.
    if (matching == "Natural"_L1 || matching == "Diffusion"_L1)
        setFlag(NaturalColorMatching, matching == "Natural"_L1);
}

void VKInkColorSettingPDE::checkPageSizeChange(const Notification &)
{
    const QString paper = ticketText(ticket(), u"com.apple.print.PageToPaperMappingMediaName"_s);
    if (paper == "120x120mm"_L1) {
        // A disc is printed in natural colours whatever the dialog answers.
        recordPendingValue(u"VKColorMatching"_s, u"Natural"_s);
        pdePluginCallbackObject->willChangePPDOptionKeyValue(u"VKColorMatching"_s, u"Natural"_s);
    }
    updateUI();
}
