#include "printsettings/VKInkPrintSetting14PDE.h"

#include "panel/ControlValue.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/JobPaper.h"
#include "printsettings/rules/PaperChange.h"
#include "printsettings/rules/PaperKind.h"
#include "printsettings/rules/PrintDirection.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

bool VKInkPrintSetting14PDE::readPageSetup()
{
    const QString name = jobPaper().checkedName(pageSetupPaperName());
    if (name.isNull() || (!paperName.isNull() && paperName == name))
        return false;
    trackDisc(name);
    // The bit EnvelopePaper is still that of the paper before: a custom paper inherits its
    // thickness.
    applyPaperThickness();
    setFlag(BorderlessPaper, isBorderlessPaper(name));
    setFlag(EnvelopePaper, countsAsEnvelope(name, pendingValue(u"VKColorPaperThick"_s)));
    if (!isCustomPaper(name)) {
        const QString thickness = applyPaperThickness();
        if (popupInited && paperThickPopup)
            paperThickPopup->selectObject(thickness);
    }
    setFlag(BiDirLeftAlone, leavesDirectionAlone(name, hasFlag(EnvelopePaper)));
    if (!hasFlag(BiDirLeftAlone))
        applyPaperBiDir();
    return true;
}

// The paper that the document is scaled to, else the page's own; null when neither can be read.
QString VKInkPrintSetting14PDE::pageSetupPaperName()
{
    const JobPaper paper = jobPaper();
    QString mapped = paper.mappedName();
    if (!mapped.isNull())
        return mapped;
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
    return paper.pageName();
}

JobPaper VKInkPrintSetting14PDE::jobPaper() const
{
    return {pdePluginCallbackObject.get(), ppd};
}

void VKInkPrintSetting14PDE::trackDisc(const QString &name)
{
    if (!paperName.isNull())
        setFlag(PreviousDiscPaper, isDiscPaper(paperName));
    paperName = name;
    setFlag(DiscPaper, isDiscPaper(name));
    const QString mediaType = mediumForDisc(hasFlag(PreviousDiscPaper), hasFlag(DiscPaper));
    if (!mediaType.isNull())
        setAndMarkValue(mediaType, u"VKMediaType"_s);
}

QString VKInkPrintSetting14PDE::applyPaperThickness()
{
    QString thickness = paperThickness(hasFlag(EnvelopePaper));
    setAndMarkValue(thickness, u"VKColorPaperThick"_s);
    return thickness;
}

// Only recorded: the rules that follow a paper change offer it to the dialog.
void VKInkPrintSetting14PDE::applyPaperBiDir()
{
    const QString keyword = u"VKBiDir"_s;
    const QString choice = directionOfMedium(pendingValue(u"VKMediaType"_s));
    recordPendingValue(keyword, choice);
    if (!popupInited)
        return;
    showChoice(biDirButton, choice);
    pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, choice);
}
