#include "dialog/job/LengthUnit.h"

#include "dialog/job/Papers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <cmath>

const std::array<LengthUnit, 2> kLengthUnits{
    {{kPointsPerMillimetre, 1, 1.0, QT_TRANSLATE_NOOP("LengthUnit", "%1 mm")},
     {kPointsPerInch, 2, 0.1, QT_TRANSLATE_NOOP("LengthUnit", "%1 in")}}};

namespace {

const LengthUnit &usualUnit()
{
    return kLengthUnits[static_cast<std::size_t>(usualLengthUnit())];
}

} // namespace

int usualLengthUnit()
{
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? 1 : 0;
}

QString lengthText(double points)
{
    const LengthUnit &unit = usualUnit();
    const double scale = std::pow(10, unit.decimals + 1);
    return QCoreApplication::translate("LengthUnit", unit.text)
        .arg(QLocale().toString(std::round(points / unit.points * scale) / scale));
}

QString lengthSuffix()
{
    return QCoreApplication::translate("LengthUnit", usualUnit().text).remove(QLatin1String("%1"));
}
