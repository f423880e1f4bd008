#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/rules/EffectTable.h"
#include "panel/TicketValue.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PanelPoint.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Points. What the section adds to the height when it unfolds is the height of its container in
// the view resource.
constexpr int kFoldedHeight = 110;
constexpr double kSectionHeight = 202.0;
constexpr int kLeastRowHeight = 17; // of the radio matrix: closer circles would touch

constexpr auto kRevertEffectDialog = "revertEffectDialog:"_L1;

} // namespace

void VKInkColorSettingPDE::connectView(ViewConnections &connections)
{
    VKPrintQualityPDE::connectView(connections);
    connectOutlets(connections);
    connections.action(u"effectValueDidChange:"_s,
                       [this](QWidget *sender) { effectValueDidChange(sender); });
    connections.action(kRevertEffectDialog,
                       [this](QWidget *sender) { revertEffectDialog(sender); });
    connections.action(u"updateImage:"_s, [this](QWidget *sender) { updateImage(sender); });
}

QAbstractButton *VKInkColorSettingPDE::revertButton() const
{
    return buttonSending(kRevertEffectDialog);
}

void VKInkColorSettingPDE::connectOutlets(ViewConnections &connections)
{
    connections.outlet(u"effectImageView"_s, effectImageView);
    connections.outlet(u"colorModeImageView"_s, colorModeImageView);
    connections.outlet(u"optionLabel"_s, optionLabel);
    for (std::size_t index = 0; index < kEffects.size(); ++index)
        connections.outlet(kEffects[index].field, m_effectFields[index]);
}

void VKInkColorSettingPDE::initializePopup()
{
    if (popupInited)
        return;
    VKPrintQualityPDE::initializePopup();
    // A label must not stand there without its control.
    if (QWidget *label = determineLabel(u"VKColorMatching"_s))
        label->setVisible(managesKeyword(u"VKColorMatching"_s));
    fitMatrix();
    titleSection();
    if (QWidget *view = loadedView())
        view->setFixedSize(view->width(), toPixels(kFoldedHeight));
    titleEffects();
    nameControls();
    restoreOptionState();
    for (const QString &keyword : std::as_const(PPDEffectKeys))
        setContent(keyword, ticketInteger(outputBin().value(keyword)));
}

// More rows than the view resource has room for take what is left above the section's title, which
// gives way to the bottom of the folded panel.
void VKInkColorSettingPDE::fitMatrix()
{
    auto *matrix = qobject_cast<RadioMatrix *>(determineUI(u"VKColorMatching"_s));
    const int rowHeight = toPixels(kLeastRowHeight);
    const int needed = matrix ? matrix->numberOfRows() * rowHeight : 0;
    if (!matrix || !optionLabel || needed <= matrix->height())
        return;
    const int bottom = std::min(needed, toPixels(kFoldedHeight) - optionLabel->height());
    const int top = std::clamp(bottom - needed, 0, matrix->y());
    adjustUIPosition(std::min(optionLabel->y() - bottom, 0) / pixelsPerPoint(),
                     {optionButton, optionLabel});
    matrix->setGeometry(matrix->x(), top, matrix->width(), bottom - top);
    if (QWidget *label = determineLabel(u"VKColorMatching"_s))
        label->setGeometry(label->x(), top, label->width(), rowHeight);
}

void VKInkColorSettingPDE::titleSection()
{
    const QString title = localized("advancedcolorItem");
    if (optionLabel && !title.isNull())
        setLabelText(optionLabel, title);
    if (optionButton)
        nameDisclosure(optionButton, localized("Section"), title);
    if (effectImageView)
        giveAccessibleName(effectImageView, localized("Preview"));
    QWidget *view = loadedView();
    // The text of the view resource is in one language only.
    if (auto *button = view ? view->findChild<QAbstractButton *>(u"revertButton"_s) : nullptr)
        setButtonTitle(button, localized("Revert"));
}

void VKInkColorSettingPDE::titleEffects()
{
    for (const QString &keyword : std::as_const(PPDEffectKeys)) {
        QLabel *label = effectLabel(keyword);
        const ppd_option_t *option = findOption(ppd, keyword);
        if (label && option)
            setLabelText(label, ppdText(option->text));
    }
}

QLabel *VKInkColorSettingPDE::effectLabel(const QString &keyword) const
{
    return PPDEffectKeys.contains(keyword) ? qobject_cast<QLabel *>(determineLabel(keyword))
                                           : nullptr;
}

void VKInkColorSettingPDE::nameControls()
{
    for (const QString &keyword : managedKeywords()) {
        const ppd_option_t *option = findOption(ppd, keyword);
        QWidget *control = determineUI(keyword);
        if (control && option)
            giveAccessibleName(control, ppdText(option->text));
    }
    const QWidget *view = loadedView();
    const auto parts = view ? view->findChildren<QWidget *>() : QList<QWidget *>();
    for (QWidget *part : parts) {
        // A slider and its field are bound to the same value.
        const QString keyword = boundKeyOf(part);
        if (const QLabel *label = effectLabel(keyword))
            giveAccessibleName(part, label->text());
    }
}

double VKInkColorSettingPDE::advancedHeight() const
{
    return kSectionHeight;
}
