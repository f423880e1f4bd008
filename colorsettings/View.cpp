#include "colorsettings/VKInkColorSettingPDE.h"

#include "panel/TicketValue.h"
#include "platform/pde/PPDText.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/SpokenName.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

// Points. What the section adds to the height when it unfolds is the height of its container in
// the view resource.
constexpr int kFoldedHeight = 110;
constexpr double kSectionHeight = 202.0;

} // namespace

void VKInkColorSettingPDE::connectView(ViewConnections &connections)
{
    VKPrintQualityPDE::connectView(connections);
    connectOutlets(connections);
    connections.action(u"effectValueDidChange:"_s,
                       [this](QWidget *sender) { effectValueDidChange(sender); });
    connections.action(u"revertEffectDialog:"_s,
                       [this](QWidget *sender) { revertEffectDialog(sender); });
    connections.action(u"updateImage:"_s, [this](QWidget *sender) { updateImage(sender); });
}

void VKInkColorSettingPDE::connectOutlets(ViewConnections &connections)
{
    connections.outlet(u"effectImageView"_s, effectImageView);
    connections.outlet(u"colorModeImageView"_s, colorModeImageView);
    connections.outlet(u"colorMatchingMatrix"_s, colorMatchingMatrix);
    connections.outlet(u"ditherPopup"_s, ditherPopup);
    connections.outlet(u"colorMatchingLabel"_s, colorMatchingLabel);
    connections.outlet(u"ditherLabel"_s, ditherLabel);
    connections.outlet(u"optionLabel"_s, optionLabel);
    connections.outlet(u"colorEnhanceButton"_s, colorEnhanceButton);
    connections.outlet(u"brightnessLabel"_s, brightnessLabel);
    connections.outlet(u"contrastLabel"_s, contrastLabel);
    connections.outlet(u"redLabel"_s, redLabel);
    connections.outlet(u"greenLabel"_s, greenLabel);
    connections.outlet(u"blueLabel"_s, blueLabel);
    connections.outlet(u"brightnessField"_s, brightnessField);
    connections.outlet(u"contrastField"_s, contrastField);
    connections.outlet(u"redField"_s, redField);
    connections.outlet(u"greenField"_s, greenField);
    connections.outlet(u"blueField"_s, blueField);
}

void VKInkColorSettingPDE::initializePopup()
{
    if (popupInited)
        return;
    VKPrintQualityPDE::initializePopup();
    // A label must not stand there without its control.
    if (colorMatchingLabel)
        colorMatchingLabel->setVisible(managesKeyword(u"VKColorMatching"_s));
    titleSection();
    if (QWidget *view = inspectedView())
        view->setFixedSize(view->width(), kFoldedHeight);
    titleEffects();
    nameControls();
    restoreOptionState();
    for (const QString &keyword : std::as_const(PPDEffectKeys))
        setContent(keyword, ticketInteger(outputBin().value(keyword)));
}

void VKInkColorSettingPDE::titleSection()
{
    const QString title = localized("advancedcolorItem");
    if (optionLabel && !title.isNull())
        optionLabel->setText(title);
    if (optionButton)
        setSpokenName(optionButton, title);
    if (effectImageView)
        setSpokenName(effectImageView, localized("Preview"));
    QWidget *view = inspectedView();
    // The text of the view resource is in one language only.
    if (auto *button = view ? view->findChild<QAbstractButton *>(u"revertButton"_s) : nullptr)
        setButtonTitle(button, localized("Revert"));
}

void VKInkColorSettingPDE::titleEffects()
{
    for (const QString &keyword : std::as_const(PPDEffectKeys)) {
        QLabel *label = effectOutlets(keyword).label;
        const ppd_option_t *option = findOption(ppd, keyword);
        if (label && option)
            label->setText(ppdText(option->text));
    }
}

void VKInkColorSettingPDE::nameControls()
{
    for (const QString &keyword : managedKeywords()) {
        const ppd_option_t *option = findOption(ppd, keyword);
        QWidget *control = determineUI(keyword);
        if (control && option)
            setSpokenName(control, ppdText(option->text));
    }
    const QWidget *view = inspectedView();
    const auto parts = view ? view->findChildren<QWidget *>() : QList<QWidget *>();
    for (QWidget *part : parts) {
        // A slider and its field are bound to the same value.
        const QString keyword = part->property("bind.value").toString();
        if (const QLabel *label = effectOutlets(keyword).label)
            setSpokenName(part, label->text());
    }
}

void VKInkColorSettingPDE::toggleShowOption(QWidget *sender)
{
    const auto *button = qobject_cast<QAbstractButton *>(sender);
    const bool unfolded = button && button->isChecked();
    const QWidget *view = inspectedView();
    QSizeF size = view ? QSizeF(view->size()) : QSizeF(0, 0);
    size.rheight() += unfolded ? kSectionHeight : -kSectionHeight;
    setViewFrameSize(size);
}
