#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/rules/ColorRules.h"
#include "colorsettings/rules/TicketColors.h"
#include "panel/TicketValue.h"
#include "platform/toolkit/ControlColor.h"

#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

void VKInkColorSettingPDE::checkUIConstraints()
{
    VKPrintQualityPDE::checkUIConstraints();
    setContent(u"VKColorMatching"_s, hasFlag(VendorColorMatching));
    if (hasFlag(FaxOutput)) {
        dimTexts();
        setRefImageWithName(u"None"_s);
        redrawEffectImage();
        return;
    }
    const ColorStates states = colorStates(job());
    setContent(u"VKMonoColor"_s, states.monoColor);
    setContent(u"VKColorEnhancement"_s, states.colorEnhancement);
    setContent(u"Color"_s, states.color);
    const QString picture =
        referencePicture(hasFlag(VendorColorMatching), pendingValue(u"VKColorMatching"_s));
    if (picture.isNull())
        return;
    setRefImageWithName(picture);
    if (hasFlag(PanelOnScreen))
        redrawEffectImage();
}

void VKInkColorSettingPDE::dimTexts()
{
    QList<QWidget *> texts{optionLabel};
    for (const QString &keyword : managedKeywords())
        texts << determineLabel(keyword);
    for (const QString &keyword : std::as_const(PPDEffectKeys))
        texts << determineField(keyword);
    for (QWidget *text : std::as_const(texts)) {
        if (text)
            setTextColor(text, disabledControlTextColor());
    }
}

ColorJob VKInkColorSettingPDE::job() const
{
    return {hasFlag(VendorColorMatching), hasFlag(MonoColorMode),
            pendingValue(u"VKColorEnhancement"_s) == "ON"_L1};
}

void VKInkColorSettingPDE::setContent(const QString &key, const QVariant &value)
{
    if (effectContent)
        effectContent->setValue(key, value);
}

long long VKInkColorSettingPDE::contentInteger(const QString &key) const
{
    return effectContent ? ticketInteger(effectContent->value(key)) : 0;
}
