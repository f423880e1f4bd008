#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/ColorRules.h"
#include "colorsettings/EffectTable.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

QString VKInkColorSettingPDE::determineKey(QWidget *control) const
{
    // An outlet that is not connected must not match a sender that is not there.
    if (!control)
        return {};
    if (control == colorMatchingMatrix)
        return u"VKColorMatching"_s;
    if (control == ditherPopup)
        return u"VKHalfTonePattern"_s;
    return control == colorEnhanceButton ? u"VKColorEnhancement"_s : QString();
}

QWidget *VKInkColorSettingPDE::determineUI(const QString &keyword) const
{
    if (keyword == "VKColorMatching"_L1)
        return colorMatchingMatrix;
    if (keyword == "VKHalfTonePattern"_L1)
        return ditherPopup;
    return keyword == "VKColorEnhancement"_L1 ? colorEnhanceButton : nullptr;
}

QWidget *VKInkColorSettingPDE::determineLabel(const QString &keyword) const
{
    if (keyword == "VKColorMatching"_L1)
        return colorMatchingLabel;
    if (keyword == "VKHalfTonePattern"_L1)
        return ditherLabel;
    return effectOutlets(keyword).label;
}

QWidget *VKInkColorSettingPDE::determineField(const QString &keyword) const
{
    return effectOutlets(keyword).field;
}

VKInkColorSettingPDE::EffectOutlets
VKInkColorSettingPDE::effectOutlets(const QString &keyword) const
{
    const EffectOutlets outlets[] = {
        {brightnessLabel, brightnessField}, {contrastLabel, contrastField}, {redLabel, redField},
        {greenLabel, greenField},           {blueLabel, blueField},
    };
    static_assert(std::size(outlets) == kEffects.size());
    for (std::size_t index = 0; index < kEffects.size(); ++index) {
        if (keyword == kEffects[index].keyword)
            return outlets[index];
    }
    return {};
}

std::optional<QStringList> VKInkColorSettingPDE::availablePPDOptionKeys() const
{
    const auto supported = VKPrintQualityPDE::availablePPDOptionKeys();
    if (!supported)
        return std::nullopt;
    return colorSummaryKeywords(*supported, job());
}
