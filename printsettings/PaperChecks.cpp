#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "printsettings/JobPaper.h"
#include "printsettings/rules/CustomSizes.h"
#include "printsettings/rules/DuplexPapers.h"
#include "printsettings/rules/PaperKind.h"
#include "printsettings/rules/PaperNames.h"
#include "printsettings/rules/PaperOrientation.h"
#include "printsettings/rules/PrintWarnings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kOrientation = "com.velkaro.print.PrintSettings.Orientation"_L1;

bool writeOrientation(PMPrintSettings *ticket, const QString &orientation)
{
    return PMPrintSettingsSetValue(ticket, kOrientation, orientation, false) == noErr;
}

// The message as a format without arguments, in which a percent sign is written twice.
AlertContent withMessageAsFormat(AlertContent alert)
{
    alert.informative.replace("%%"_L1, "%"_L1);
    return alert;
}

} // namespace

bool VKInkPrintSetting14PDE::checkCustomPaperSizeAlert()
{
    if (!isCustomPaper(paperName))
        return true;
    const JobPaper paper = jobPaper();
    const std::optional<QSizeF> size = paper.size();
    return size && (paper.isWithinLimits(*size) || refuseUnsupportedPaper(unsupportedPaperAlert()));
}

bool VKInkPrintSetting14PDE::checkShouldShowDiscAlert()
{
    if (!asksForDisc(hasFlag(DiscPaper), markedChoice(ppd, u"VKMediaType"_s)))
        return true;
    panelView();
    AlertContent content = noticeAlert(AlertStyle::Informational, localized("DiscPrint Alert"),
                                       localized("DiscPrint Alert2"));
    content.buttons << localized("Cancel");
    return runAlert(content).button == 0;
}

bool VKInkPrintSetting14PDE::checkShouldShowEnvelopeAlert()
{
    return !isKindOfJPEnvelope(paperName) || confirmEnvelope();
}

bool VKInkPrintSetting14PDE::checkShouldShowDuplexAlert()
{
    if (hasFlag(DuplexOn) && isDuplexPaper(paperName))
        return true;
    runAlert(
        noticeAlert(AlertStyle::Critical, localized("Duplex Alert"), localized("Duplex Alert2")));
    return false;
}

bool VKInkPrintSetting14PDE::checkPaperAndShowOrientationAlert()
{
    writeOrientation(ticket(), u"Portrait"_s);
    switch (orientationCheck(paperName)) {
    case OrientationCheck::ConfirmEnvelope:
        return confirmEnvelope();
    case OrientationCheck::Landscape:
        return writeOrientation(ticket(), u"Landscape"_s);
    case OrientationCheck::Portrait:
        return true;
    case OrientationCheck::Refuse:
        return refuseUnsupportedPaper(withMessageAsFormat(unsupportedPaperAlert()));
    case OrientationCheck::BySize:
        break;
    }
    return checkOrientationBySize();
}

bool VKInkPrintSetting14PDE::checkOrientationBySize()
{
    const JobPaper paper = jobPaper();
    const std::optional<QSizeF> size = paper.size();
    if (!size)
        return false;
    if (!paper.isWithinLimits(*size))
        return refuseUnsupportedPaper(unsupportedPaperAlert());
    if (isLandscapeSize(*size))
        writeOrientation(ticket(), u"Landscape"_s);
    return true;
}

bool VKInkPrintSetting14PDE::refuseUnsupportedPaper(const AlertContent &alert)
{
    runAlert(alert);
    return false;
}
