#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/pde/PPDText.h"
#include "platform/printmanager/PMPageFormat.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "printsettings/CustomSizes.h"
#include "printsettings/DuplexPapers.h"
#include "printsettings/PaperKind.h"
#include "printsettings/PaperNames.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {
constexpr auto kOrientation = "com.velkaro.print.PrintSettings.Orientation";
}

bool VKInkPrintSetting14PDE::checkCustomPaperSizeAlert()
{
    if (!isCustomPaper(paperName))
        return true;
    const std::optional<QSizeF> size = paperSizeInPoints();
    return size && (isPaperWithinCustomSizes(*size) || refuseUnsupportedPaper());
}

bool VKInkPrintSetting14PDE::checkShouldShowDiscAlert()
{
    if (!hasFlag(DiscPaper))
        return true;
    const QString medium = markedChoice(ppd, u"VKMediaType"_s);
    if (medium != "PrintableDisc"_L1 && medium != "GlossyPrintableDisc"_L1)
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
    writeOrientation(u"Portrait"_s);
    if (isKindOfJPEnvelope(paperName))
        return confirmEnvelope();
    if (isKindOfLandscapePaper(paperName))
        return writeOrientation(u"Landscape"_s);
    if (isKindOfPortraitPaper(paperName) || isKindOfManualFeedPaper(paperName))
        return true;
    if (paperName == "UnsupportedPaper"_L1)
        return refuseUnsupportedPaper();
    const std::optional<QSizeF> size = paperSizeInPoints();
    if (!size)
        return false;
    if (!isPaperWithinCustomSizes(*size))
        return refuseUnsupportedPaper();
    if (isLandscapeSize(*size))
        writeOrientation(u"Landscape"_s);
    return true;
}

bool VKInkPrintSetting14PDE::refuseUnsupportedPaper()
{
    runAlert(unsupportedPaperAlert());
    return false;
}

// In whole points; none when the page setup cannot be read. A dialog without a ticket has no page
// either: its size is 0, which no printer takes.
std::optional<QSizeF> VKInkPrintSetting14PDE::paperSizeInPoints() const
{
    if (!pdePluginCallbackObject ||
        !pdePluginCallbackObject->respondsTo(HostOperation::PrintSettings))
        return QSizeF(0, 0);
    double width = 0;
    double height = 0;
    const PMPaper *paper = pageFormatPaper();
    if (PMPaperGetWidth(paper, &width) != noErr || PMPaperGetHeight(paper, &height) != noErr)
        return std::nullopt;
    return QSizeF(std::round(width), std::round(height));
}

bool VKInkPrintSetting14PDE::isPaperWithinCustomSizes(const QSizeF &size) const
{
    return ppd && isWithinCustomSizes(*ppd, size);
}

bool VKInkPrintSetting14PDE::writeOrientation(const QString &orientation)
{
    return PMPrintSettingsSetValue(ticket(), QString::fromLatin1(kOrientation), orientation,
                                   false) == noErr;
}
