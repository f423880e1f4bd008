#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/printmanager/PMPageFormat.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/CustomSizes.h"
#include "printsettings/PaperKind.h"
#include "printsettings/PaperNames.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {
constexpr auto kMappedPaper = "com.apple.print.PageToPaperMappingMediaName";
}

bool VKInkPrintSetting14PDE::readPageSetup()
{
    const QString name = checkedPaperName(pageSetupPaperName());
    if (name.isNull() || (!paperName.isNull() && paperName == name))
        return false;
    trackDisc(name);
    applyDiscMedium();
    // By the envelope bit of the paper before: a custom paper inherits its thickness.
    applyPaperThickness();
    setFlag(BorderlessPaper, isBorderlessPaper(name));
    setFlag(EnvelopePaper, isEnvelopePaper(name));
    if (isCustomPaper(name)) {
        if (pendingValue(u"VKColorPaperThick"_s) == "Env"_L1)
            setFlag(EnvelopePaper, true);
    } else {
        const QString thickness = applyPaperThickness();
        if (popupInited && paperThickPopup)
            paperThickPopup->selectObject(thickness);
    }
    setFlag(BiDirLeftAlone, hasFlag(EnvelopePaper) || isKindOfPostcardPaperSize(name));
    if (!hasFlag(BiDirLeftAlone))
        applyPaperBiDir();
    return true;
}

// The paper that the document is scaled to, else the page's own; null when neither can be read.
QString VKInkPrintSetting14PDE::pageSetupPaperName()
{
    QVariant mapped;
    if (PMPrintSettingsGetValue(ticket(), QString::fromLatin1(kMappedPaper), &mapped) == noErr &&
        !mapped.toString().isNull())
        return mapped.toString();
    // Without keywords the panel is not set up yet: it follows the dialog's paper menu instead.
    NotificationCenter &center = NotificationCenter::defaultCenter();
    if (!PPDKeys)
        center.addObserver(
            this, [this](const Notification &posted) { checkPageSizeChange(posted); },
            QLatin1String(kMenuDidSendActionNotification));
    if (!pdePluginCallbackObject ||
        !pdePluginCallbackObject->respondsTo(HostOperation::PrintSettings))
        return {};
    if (!ticket()) {
        center.removeObserver(this);
        return {};
    }
    QString name;
    PMPaperGetName(pageFormatPaper(), &name);
    return name;
}

const PMPaper *VKInkPrintSetting14PDE::pageFormatPaper() const
{
    if (!pdePluginCallbackObject || !pdePluginCallbackObject->respondsTo(HostOperation::PageFormat))
        return nullptr;
    const PMPaper *paper = nullptr;
    PMGetPageFormatPaper(pdePluginCallbackObject->pageFormat(), &paper);
    return paper;
}

// A size that the user defined and named "Letter" may be too large or too small for the printer.
QString VKInkPrintSetting14PDE::checkedPaperName(const QString &name) const
{
    const PMPaper *paper = name == "Letter"_L1 ? pageFormatPaper() : nullptr;
    QString ppdName;
    if (!paper || !ppd || PMPaperGetPPDPaperName(paper, &ppdName) == noErr)
        return name;
    double width = 0;
    double height = 0;
    if (PMPaperGetWidth(paper, &width) != noErr || PMPaperGetHeight(paper, &height) != noErr)
        return name;
    return isWithinCustomSizes(*ppd, QSizeF(width, height)) ? name : u"UnsupportedPaper"_s;
}

void VKInkPrintSetting14PDE::trackDisc(const QString &name)
{
    if (!paperName.isNull())
        setFlag(PreviousDiscPaper, isDiscPaper(paperName));
    paperName = name;
    setFlag(DiscPaper, isDiscPaper(name));
}

// Leaving a disc falls back to plain paper also when the next paper is a disc again: the rules that
// follow a paper change bring "PrintableDisc" back, and the dialog is told of both.
void VKInkPrintSetting14PDE::applyDiscMedium()
{
    if (hasFlag(PreviousDiscPaper))
        setAndMarkValue(u"Plain"_s, u"VKMediaType"_s);
    else if (hasFlag(DiscPaper))
        setAndMarkValue(u"PrintableDisc"_s, u"VKMediaType"_s);
}

QString VKInkPrintSetting14PDE::applyPaperThickness()
{
    QString thickness = hasFlag(EnvelopePaper) ? u"Env"_s : u"Regular"_s;
    setAndMarkValue(thickness, u"VKColorPaperThick"_s);
    return thickness;
}

// Only recorded: the rules that follow a paper change offer it to the dialog.
void VKInkPrintSetting14PDE::applyPaperBiDir()
{
    const QString keyword = u"VKBiDir"_s;
    const bool on = isKindOfPlainPaper(pendingValue(u"VKMediaType"_s));
    const QString choice = on ? u"ON"_s : u"OFF"_s;
    recordPendingValue(keyword, choice);
    if (!popupInited)
        return;
    if (biDirButton)
        biDirButton->setChecked(on);
    pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, choice);
}
