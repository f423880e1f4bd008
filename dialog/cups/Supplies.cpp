#include "dialog/cups/Supplies.h"

#include "dialog/cups/ServerSentences.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostSupplies = 32;
constexpr int kMostColors = 8; // of one cartridge
constexpr qsizetype kLongestName = 60;
constexpr int kColorLength = 7;    // #RRGGBB
constexpr int kGreyTolerance = 16; // of 255: printers call their greys #1A1B1C

// What `marker-levels` says in place of a level.
constexpr int kSomeLeft = -3;
constexpr int kFull = 100;

QString worded(const char *text)
{
    return QCoreApplication::translate("Supplies", text);
}

/// The printer's values of one attribute; none where they are of another kind.
template <typename Value, typename Read>
QList<Value> valuesOf(ipp_t *printer, const char *name, bool (*isKind)(ipp_tag_t), const Read &read)
{
    ipp_attribute_t *attribute = ippFindAttribute(printer, name, IPP_TAG_ZERO);
    QList<Value> values;
    if (attribute && isKind(ippGetValueTag(attribute)))
        for (int index = 0; index < ippGetCount(attribute); ++index)
            values += read(attribute, index);
    return values;
}

/// cupsd gives as names what others give as keywords or as texts.
bool isText(ipp_tag_t tag)
{
    constexpr std::array kinds{IPP_TAG_NAME, IPP_TAG_TEXT, IPP_TAG_KEYWORD, IPP_TAG_NAMELANG,
                               IPP_TAG_TEXTLANG};
    return std::ranges::find(kinds, tag) != kinds.end();
}

bool isInteger(ipp_tag_t tag)
{
    return tag == IPP_TAG_INTEGER;
}

QStringList texts(ipp_t *printer, const char *name)
{
    return valuesOf<QString>(printer, name, isText, [](ipp_attribute_t *attribute, int index) {
        return QString::fromUtf8(ippGetString(attribute, index, nullptr));
    });
}

QList<int> integers(ipp_t *printer, const char *name)
{
    return valuesOf<int>(printer, name, isInteger, ippGetInteger);
}

QString nameOf(const QString &told, qsizetype index)
{
    QString name = shownServerText(told);
    if (name.size() > kLongestName) {
        name.truncate(kLongestName - (name[kLongestName - 1].isHighSurrogate() ? 1 : 0));
        name += QChar(0x2026);
    }
    return name.isEmpty() ? QCoreApplication::translate("Supplies", "Supply %1")
                                .arg(QString::number(index + 1))
                          : name;
}

/// "#RRGGBB", once for each color of the cartridge. Anything else, "none" too, is no color.
QList<QRgb> colorsOf(const QString &told)
{
    static const QRegularExpression form(uR"(\A(?:#[0-9A-Fa-f]{6})+\z)"_s);
    QList<QRgb> colors;
    if (!form.match(told).hasMatch())
        return colors;
    for (const QString &one : told.mid(1, kMostColors * kColorLength - 1).split(u'#'))
        colors += 0xff000000 | one.toUInt(nullptr, 16);
    return colors;
}

/// Printers write "wasteInk" or "waste-ink".
bool isWasteType(const QString &type)
{
    return type.startsWith("waste"_L1, Qt::CaseInsensitive);
}

std::optional<int> percent(int value)
{
    return value >= 0 && value <= kFull ? std::optional(value) : std::nullopt;
}

SupplyState stateOf(std::optional<int> level, std::optional<int> low)
{
    if (!level)
        return SupplyState::Unknown;
    if (*level == 0)
        return SupplyState::Empty;
    return low && *level <= *low ? SupplyState::Low : SupplyState::Good;
}

SupplyState stateOfWaste(std::optional<int> level, std::optional<int> high)
{
    if (!level)
        return SupplyState::Unknown;
    if (*level == kFull)
        return SupplyState::Empty;
    return high && *level >= *high ? SupplyState::Low : SupplyState::Good;
}

/// What the printer says of its supplies: each list as long as there are supplies, or empty.
struct Lists
{
    QStringList names;
    QStringList colors;
    QStringList types;
    QList<int> levels;
    QList<int> low;
    QList<int> high;
};

template <typename List> List matching(List list, qsizetype count)
{
    return list.size() == count ? list : List();
}

Lists listsOf(ipp_t *printer)
{
    Lists all{texts(printer, "marker-names"),         texts(printer, "marker-colors"),
              texts(printer, "marker-types"),         integers(printer, "marker-levels"),
              integers(printer, "marker-low-levels"), integers(printer, "marker-high-levels")};
    const qsizetype count = all.names.isEmpty() ? all.levels.size() : all.names.size();
    all.names = all.names.isEmpty() ? QStringList(count) : all.names;
    all.colors = matching(all.colors, count);
    all.types = matching(all.types, count);
    all.levels = matching(all.levels, count);
    all.low = matching(all.low, count);
    all.high = matching(all.high, count);
    return all;
}

Supply supplyAt(const Lists &all, qsizetype index)
{
    constexpr int kNotTold = -1;
    Supply supply{.name = nameOf(all.names[index], index),
                  .colors = colorsOf(all.colors.value(index)),
                  .isWaste = isWasteType(all.types.value(index)),
                  .level = percent(all.levels.value(index, kNotTold))};
    // No level below zero would be low, and none is above a hundred.
    supply.state = supply.isWaste
                       ? stateOfWaste(supply.level, percent(all.high.value(index, kNotTold)))
                       : stateOf(supply.level, percent(all.low.value(index, kNotTold)));
    if (all.levels.value(index, kNotTold) == kSomeLeft)
        supply.state = SupplyState::SomeLeft;
    return supply;
}

struct StateWords
{
    SupplyState state;
    const char *text; ///< %1: the level in per cent
    const char *ofWaste;
};

constexpr std::array kStateWords{
    StateWords{SupplyState::Unknown, QT_TRANSLATE_NOOP("Supplies", "Not known"),
               QT_TRANSLATE_NOOP("Supplies", "Not known")},
    StateWords{SupplyState::SomeLeft, QT_TRANSLATE_NOOP("Supplies", "Some left"),
               QT_TRANSLATE_NOOP("Supplies", "Some room left")},
    StateWords{SupplyState::Good, QT_TRANSLATE_NOOP("Supplies", "%1%"),
               QT_TRANSLATE_NOOP("Supplies", "%1% full")},
    StateWords{SupplyState::Low, QT_TRANSLATE_NOOP("Supplies", "Low: %1%"),
               QT_TRANSLATE_NOOP("Supplies", "Almost full: %1%")},
    StateWords{SupplyState::Empty, QT_TRANSLATE_NOOP("Supplies", "Empty"),
               QT_TRANSLATE_NOOP("Supplies", "Full")},
};

bool isGrey(QRgb color)
{
    const auto [least, most] = std::minmax({qRed(color), qGreen(color), qBlue(color)});
    return most - least <= kGreyTolerance;
}

/// The names of the supplies in that state that a job needs, waste apart.
QStringList namesIn(const QList<Supply> &supplies, SupplyState state, bool ofWaste, bool inColor)
{
    QStringList names;
    for (const Supply &supply : supplies)
        if (supply.state == state && supply.isWaste == ofWaste && isNeeded(supply, inColor))
            names += supply.name;
    return names;
}

struct Warning
{
    SupplyState state;
    bool isOfWaste;
    const char *sentence; ///< %1: the supplies
};

// The worst first.
constexpr std::array kWarnings{
    Warning{SupplyState::Empty, false,
            QT_TRANSLATE_NOOP("Supplies", "Used up in the printer: %1.")},
    Warning{SupplyState::Empty, true, QT_TRANSLATE_NOOP("Supplies", "Full in the printer: %1.")},
    Warning{SupplyState::Low, false,
            QT_TRANSLATE_NOOP("Supplies", "Running low in the printer: %1.")},
};

} // namespace

const QList<QByteArray> &supplyAttributes()
{
    static const QList<QByteArray> names{"marker-names",      "marker-colors",
                                         "marker-types",      "marker-levels",
                                         "marker-low-levels", "marker-high-levels"};
    return names;
}

QList<Supply> suppliesOf(ipp_t *printer)
{
    const Lists all = listsOf(printer);
    QList<Supply> supplies;
    for (qsizetype index = 0; index < std::min<qsizetype>(all.names.size(), kMostSupplies); ++index)
        supplies += supplyAt(all, index);
    return supplies;
}

QString levelText(const Supply &supply)
{
    const auto *row = std::ranges::find(kStateWords, supply.state, &StateWords::state);
    const QString text = worded(supply.isWaste ? row->ofWaste : row->text);
    return supply.level && text.contains("%1"_L1) ? text.arg(*supply.level) : text;
}

bool isNeeded(const Supply &supply, bool inColor)
{
    return inColor || supply.colors.isEmpty() || std::ranges::any_of(supply.colors, isGrey);
}

QStringList sentencesOn(const QList<Supply> &supplies, bool inColor)
{
    QStringList sentences;
    for (const Warning &warning : kWarnings) {
        const QStringList names = namesIn(supplies, warning.state, warning.isOfWaste, inColor);
        if (!names.isEmpty())
            sentences += worded(warning.sentence)
                             .arg(names.join(QCoreApplication::translate("Supplies", ", ")));
    }
    return sentences;
}
