#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QRgb>

#include <cups/ipp.h>

#include <optional>

/// How much there is of a supply, as far as its printer tells.
enum class SupplyState {
    Unknown,
    SomeLeft, ///< how much is not known
    Good,
    Low,   ///< at the level that the printer calls low, or below
    Empty, ///< and of a container for waste: full
};

/// What a printer uses up or fills: ink, toner, a container for waste.
struct Supply
{
    QString name;                  ///< plain and never empty; the printer's own where it has one
    QList<QRgb> colors = {};       ///< none: it prints no color, or the printer tells none
    bool isWaste = false;          ///< a container that fills up
    std::optional<int> level = {}; ///< in per cent, of waste how full it is; none: not known
    SupplyState state = SupplyState::Unknown;

    bool operator==(const Supply &) const = default;
};

/// The supplies of a printer's attributes (`marker-names` and its kin), in its order. A list that
/// has not as many values as there are supplies tells nothing, since nobody knows which value is
/// whose; neither does a level, a color or a type that the standard does not know.
QList<Supply> suppliesOf(ipp_t *printer);

/// The names of those attributes.
const QList<QByteArray> &supplyAttributes();

/// How much there is, in words: "80 %", "Low: 8 %", "Not known".
QString levelText(const Supply &supply);

/// Whether a job needs the supply. One that prints without color does not need an ink whose colors
/// are known and none of which is a grey.
bool isNeeded(const Supply &supply, bool inColor);

/// What a person should know before a job that prints in color or not: which of the supplies that
/// it needs are used up or low, one sentence each.
QStringList sentencesOn(const QList<Supply> &supplies, bool inColor);
