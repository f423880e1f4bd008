#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/Bundle.h"
#include "platform/imaging/PictureReader.h"
#include "platform/pde/PPDText.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ModalSession.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ViewLoader.h"
#include "printsettings/TextHeight.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QImage>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kAlertImageSize(278, 243); // points
constexpr int kInstructionFontSize = 12;   // points, which are pixels here
constexpr double kMessageMargin = 6.0;     // points under the message

QFont systemFont()
{
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont);
}

void setInstruction(QLabel *label, const QString &text)
{
    if (!label)
        return;
    QFont font = systemFont();
    font.setPixelSize(kInstructionFontSize);
    label->setFont(font);
    label->setText(text);
}

} // namespace

void VKInkPrintSetting14PDE::connectAlertWindows(ViewConnections &connections)
{
    connections.outlet(u"envAlertWindow"_s, envAlertWindow);
    connections.outlet(u"envAlertImageView"_s, envAlertImageView);
    connections.outlet(u"envInstructionLabel1"_s, envInstructionLabel1);
    connections.outlet(u"envInstructionLabel2"_s, envInstructionLabel2);
    connections.outlet(u"envAlertOKButton"_s, envAlertOKButton);
    connections.outlet(u"envAlertCancelButton"_s, envAlertCancelButton);
    connections.outlet(u"normalPaperAlertOKButton"_s, normalPaperAlertOKButton);
    connections.outlet(u"normalPaperAlertCancelButton"_s, normalPaperAlertCancelButton);
    connections.outlet(u"customPaperAlertOKButton"_s, customPaperAlertOKButton);
    connections.outlet(u"customPaperAlertCancelButton"_s, customPaperAlertCancelButton);
    connections.outlet(u"suppressionButton"_s, suppressionButton);
    connections.action(u"dialogOkDidClick:"_s,
                       [this](QWidget *sender) { dialogOkDidClick(sender); });
    connections.action(u"dialogCancelDidClick:"_s,
                       [this](QWidget *sender) { dialogCancelDidClick(sender); });
}

// Hardly any job needs them, and every dialog would wait for them.
void VKInkPrintSetting14PDE::loadAlertWindows()
{
    const bool viewIsLoaded = effectContent != nullptr;
    if (!viewIsLoaded || alertWindows_)
        return;
    ViewConnections connections;
    connectAlertWindows(connections);
    alertWindows_ =
        loadView(pluginBundle->pathForResource(thePDEName() + u"Alerts"_s, u"ui"_s), connections);
}

QHash<QString, QWidget *> VKInkPrintSetting14PDE::inspectedOutlets() const
{
    auto outlets = VKPrintQualityPDE::inspectedOutlets();
    if (alertWindows_)
        outlets.insert(alertWindows_->outlets());
    return outlets;
}

bool VKInkPrintSetting14PDE::confirmEnvelope()
{
    readyToShowEnvelopeAlert();
    return showDialog(envAlertWindow, QString()) == kModalOK;
}

void VKInkPrintSetting14PDE::readyToShowEnvelopeAlert()
{
    loadAlertWindows();
    const bool multiPurposeTray = managesKeyword(u"VKInputSlot"_s) &&
                                  findChoice(findOption(ppd, u"VKInputSlot"_s), u"MPTray"_s);
    putAlertImage(envAlertImageView, multiPurposeTray ? u"QTLark22_Tray_Env"_s : u"QTLark22_Env"_s);
    const QString loading =
        localized(multiPurposeTray ? "Envelope Alert2 Lark22 MP" : "Envelope Alert2 Lark22");
    setInstruction(envInstructionLabel1, localized("Envelope Alert1") + u"\n\n"_s + loading);
    setInstruction(envInstructionLabel2, localized("Envelope Caution"));
    titleButton(envAlertOKButton, "OK");
    titleButton(envAlertCancelButton, "Cancel");
    if (envAlertWindow)
        envAlertWindow->setWindowTitle(localized("Envelope Alert Title"));
}

void VKInkPrintSetting14PDE::readyToShowPaperAlertWithKind(
    const QString &kind, const QString &orientationMessage, QWidget *alertWindow,
    ImageView *alertView, const QString &alertImage, QLabel *alertMessageLabel)
{
    loadAlertWindows();
    putAlertImage(alertView, alertImage);
    if (kind == "Normal Paper"_L1) {
        titleButton(normalPaperAlertOKButton, "OK");
        titleButton(normalPaperAlertCancelButton, "Cancel");
        titleButton(suppressionButton, "Suppression");
    }
    titleButton(customPaperAlertOKButton, "OK");
    titleButton(customPaperAlertCancelButton, "Cancel");

    const QString message =
        pluginBundle ? pluginBundle->localizedString(orientationMessage) : orientationMessage;
    const QSize labelSize = alertMessageLabel ? alertMessageLabel->size() : QSize(0, 0);
    const double needed = heightForSpecifiedFont(message, systemFont(), labelSize.width());
    const int height = qRound(needed + kMessageMargin);
    if (alertMessageLabel) {
        alertMessageLabel->setText(message);
        alertMessageLabel->resize(labelSize.width(), height);
    }
    if (!alertWindow)
        return;
    alertWindow->resize(alertWindow->width(), alertWindow->height() + height - labelSize.height());
    alertWindow->setWindowTitle(localized("Paper Orientation Title"));
    alertWindow->update();
}

void VKInkPrintSetting14PDE::putAlertImage(ImageView *view, const QString &name)
{
    const QString path = pluginBundle ? pluginBundle->pathForResource(name, u"tiff"_s) : QString();
    const QImage image = imaging::readPicture(path);
    if (!view || image.isNull())
        return;
    view->setImage(image, kAlertImageSize);
    view->setImageName(name);
}

void VKInkPrintSetting14PDE::titleButton(QAbstractButton *button, const char *key)
{
    if (button)
        setButtonTitle(button, localized(key));
}

int VKInkPrintSetting14PDE::showDialog(QWidget *window, const QString &alertKey)
{
    const int result = runModalForWindow(window);
    if (result == kModalOK) {
        const bool suppressed = suppressionButton && suppressionButton->isChecked();
        alertDidEnd({0, suppressed}, result, alertKey);
    }
    if (window)
        window->hide();
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
