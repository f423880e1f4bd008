#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/rules/ColorRules.h"
#include "colorsettings/rules/EffectTable.h"
#include "platform/toolkit/NumberField.h"

QWidget *VKInkColorSettingPDE::determineField(const QString &keyword) const
{
    for (std::size_t index = 0; index < kEffects.size(); ++index) {
        if (keyword == kEffects[index].keyword)
            return m_effectFields[index];
    }
    return nullptr;
}

std::optional<QStringList> VKInkColorSettingPDE::availablePPDOptionKeys() const
{
    const auto supported = VKPrintQualityPDE::availablePPDOptionKeys();
    if (!supported)
        return std::nullopt;
    return colorSummaryKeywords(*supported, job());
}
