#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/Bundle.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/KeyWindowChild.h"
#include "platform/toolkit/ModalSession.h"

using namespace Qt::StringLiterals;

void VKInkPrintSetting14PDE::loadAlertWindows()
{
    const bool viewIsLoaded = effectContent != nullptr;
    if (!viewIsLoaded || m_alertWindows.isLoaded())
        return;
    m_alertWindows.load(
        pluginBundle->pathForResource(thePDEName() + u"Alerts"_s, u"ui"_s),
        [this](QWidget *sender) { dialogOkDidClick(sender); },
        [this](QWidget *sender) { dialogCancelDidClick(sender); });
}

QHash<QString, QWidget *> VKInkPrintSetting14PDE::outlets() const
{
    auto outlets = VKPrintQualityPDE::outlets();
    outlets.insert(m_alertWindows.outlets());
    return outlets;
}

bool VKInkPrintSetting14PDE::confirmEnvelope()
{
    readyToShowEnvelopeAlert();
    return showDialog(m_alertWindows.envelopeWindow(), QString()) == kModalOK;
}

void VKInkPrintSetting14PDE::readyToShowEnvelopeAlert()
{
    loadAlertWindows();
    const bool multiPurposeTray = managesKeyword(u"VKInputSlot"_s) &&
                                  findChoice(findOption(ppd, u"VKInputSlot"_s), u"MPTray"_s);
    const QString loading =
        localized(multiPurposeTray ? "Envelope Alert2 Lark22 MP" : "Envelope Alert2 Lark22");
    EnvelopeAlert alert;
    alert.title = localized("Envelope Alert Title");
    alert.instruction = localized("Envelope Alert1") + u"\n\n"_s + loading;
    alert.caution = localized("Envelope Caution");
    alert.ok = localized("OK");
    alert.cancel = localized("Cancel");
    alert.picture = multiPurposeTray ? u"QTLark22_Tray_Env"_s : u"QTLark22_Env"_s;
    alert.picturePath = picturePath(alert.picture);
    m_alertWindows.fillEnvelope(alert);
}

void VKInkPrintSetting14PDE::readyToShowPaperAlertWithKind(
    const QString &kind, const QString &orientationMessage, QWidget *alertWindow,
    ImageView *alertView, const QString &alertImage, QLabel *alertMessageLabel)
{
    loadAlertWindows();
    showAlertPicture(alertView, alertImage, picturePath(alertImage));
    m_alertWindows.titlePaperButtons(localized("OK"), localized("Cancel"),
                                     kind == "Normal Paper"_L1 ? localized("Suppression")
                                                               : QString());
    fitMessage(alertWindow, alertMessageLabel,
               pluginBundle ? pluginBundle->localizedString(orientationMessage)
                            : orientationMessage);
    if (alertWindow)
        alertWindow->setWindowTitle(localized("Paper Orientation Title"));
}

QString VKInkPrintSetting14PDE::picturePath(const QString &name) const
{
    return pluginBundle ? pluginBundle->pathForResource(name, u"tiff"_s) : QString();
}

int VKInkPrintSetting14PDE::showDialog(QWidget *window, const QString &alertKey)
{
    loadAlertWindows(); // whichever window this is, the suppression box is one of theirs
    const KeyWindowChild inFront(window);
    const int result = runModalForWindow(window);
    if (result == kModalOK)
        alertDidEnd({0, m_alertWindows.isSuppressed()}, result, alertKey);
    return result;
}

void VKInkPrintSetting14PDE::dialogOkDidClick(QWidget *)
{
    stopModalWithCode(kModalOK);
}

void VKInkPrintSetting14PDE::dialogCancelDidClick(QWidget *)
{
    stopModalWithCode(kModalCancel);
}
