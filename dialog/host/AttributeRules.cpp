#include "dialog/host/AttributeRules.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Attribute
{
    QLatin1String name;
    QLatin1String values; ///< a pattern for the whole value
};

// What servers derive or have a default of. Never `media`: it would win over the paper.
constexpr std::array kAttributes{
    Attribute{"finishings"_L1, "[3-9]|[1-9]\\d{1,2}"_L1},
    Attribute{"output-bin"_L1, "[a-z0-9-]+"_L1},
    Attribute{"print-color-mode"_L1, "[a-z-]+"_L1},
    Attribute{"print-content-optimize"_L1, "[a-z-]+"_L1},
    Attribute{"print-quality"_L1, "[345]"_L1},
    Attribute{"sides"_L1, "one-sided|two-sided-long-edge|two-sided-short-edge"_L1},
};

bool isValueOf(const QString &name, const QString &value)
{
    const auto *attribute = std::ranges::find(kAttributes, name, &Attribute::name);
    return attribute != kAttributes.end() &&
           QRegularExpression(QRegularExpression::anchoredPattern(attribute->values))
               .match(value)
               .hasMatch();
}

std::optional<AttributeRule> ruleOf(const QVariantMap &row)
{
    constexpr qsizetype kMembers = 4;
    const PPDMark mark{row["Keyword"_L1].toString(), row["Choice"_L1].toString()};
    const AttributeRule rule{{mark}, row["Attribute"_L1].toString(), row["Value"_L1].toString()};
    const bool isWhole =
        row.size() == kMembers && !mark.keyword.isEmpty() && !mark.choice.isEmpty();
    return isWhole && isValueOf(rule.attribute, rule.value) ? std::optional(rule) : std::nullopt;
}

} // namespace

AttributeRules attributeRules(const QVariant &entry)
{
    AttributeRules all;
    if (entry.isValid() && entry.typeId() != QMetaType::QVariantList)
        all.wrongRow = 1;
    for (const QVariant &row : entry.toList()) {
        const std::optional<AttributeRule> rule = ruleOf(row.toMap());
        if (!rule) {
            all.wrongRow = static_cast<int>(all.rules.size()) + 1;
            break;
        }
        all.rules += *rule;
    }
    return all;
}
