#include "printsettings/AlertWindows.h"

#include "platform/imaging/PictureReader.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
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
    setLabelText(label, text);
}

void setTitle(QAbstractButton *button, const QString &title)
{
    if (button)
        setButtonTitle(button, title);
}

} // namespace

void AlertWindows::load(const QString &path, const Action &ok, const Action &cancel)
{
    if (isLoaded())
        return;
    ViewConnections connections;
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
    connections.action(u"dialogOkDidClick:"_s, ok);
    connections.action(u"dialogCancelDidClick:"_s, cancel);
    m_view = loadView(path, connections);
}

QHash<QString, QWidget *> AlertWindows::outlets() const
{
    return m_view ? m_view->outlets() : QHash<QString, QWidget *>();
}

void AlertWindows::fillEnvelope(const EnvelopeAlert &alert)
{
    showAlertPicture(envAlertImageView, alert.picture, alert.picturePath);
    setInstruction(envInstructionLabel1, alert.instruction);
    setInstruction(envInstructionLabel2, alert.caution);
    setTitle(envAlertOKButton, alert.ok);
    setTitle(envAlertCancelButton, alert.cancel);
    if (envAlertWindow)
        envAlertWindow->setWindowTitle(alert.title);
}

void AlertWindows::titlePaperButtons(const QString &ok, const QString &cancel,
                                     const QString &suppression)
{
    if (!suppression.isNull()) {
        setTitle(normalPaperAlertOKButton, ok);
        setTitle(normalPaperAlertCancelButton, cancel);
        setTitle(suppressionButton, suppression);
    }
    setTitle(customPaperAlertOKButton, ok);
    setTitle(customPaperAlertCancelButton, cancel);
}

bool AlertWindows::isSuppressed() const
{
    return suppressionButton && suppressionButton->isChecked();
}

void showAlertPicture(ImageView *view, const QString &name, const QString &path)
{
    const QImage image = view ? readPicture(path) : QImage();
    if (image.isNull())
        return;
    view->setImage(image, kAlertImageSize);
    view->setImageName(name);
}

void fitMessage(QWidget *window, QLabel *label, const QString &message)
{
    const QSize labelSize = label ? label->size() : QSize(0, 0);
    const double needed = heightForSpecifiedFont(message, systemFont(), labelSize.width());
    const int height = qRound(needed + kMessageMargin);
    if (label) {
        setLabelText(label, message);
        label->resize(labelSize.width(), height);
    }
    if (!window)
        return;
    window->resize(window->width(), window->height() + height - labelSize.height());
    window->update();
}
