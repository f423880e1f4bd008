#include "dialog/host/AttributeRules.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Attribute
{
    QLatin1String name;
    bool (*takes)(const QString &value);
};

bool isFinishing(const QString &value)
{
    constexpr int kNone = 3; // the least that IPP has
    constexpr int kEnd = 1000;
    const int number = value.toInt();
    return number >= kNone && number < kEnd && value == QString::number(number);
}

bool isQuality(const QString &value)
{
    return value == "3"_L1 || value == "4"_L1 || value == "5"_L1;
}

bool isSides(const QString &value)
{
    return value == "one-sided"_L1 || value == "two-sided-long-edge"_L1 ||
           value == "two-sided-short-edge"_L1;
}

bool isKeyword(const QString &value)
{
    const auto belongs = [](QChar sign) {
        return (sign >= u'a' && sign <= u'z') || (sign >= u'0' && sign <= u'9') || sign == u'-';
    };
    return !value.isEmpty() && std::ranges::all_of(value, belongs);
}

// What servers derive or have a default of. Never `media`: it would win over the paper. The values
// are told by hand: a regular expression would be the only one of the whole start.
constexpr std::array kAttributes{
    Attribute{"finishings"_L1, isFinishing},     Attribute{"output-bin"_L1, isKeyword},
    Attribute{"print-color-mode"_L1, isKeyword}, Attribute{"print-content-optimize"_L1, isKeyword},
    Attribute{"print-quality"_L1, isQuality},    Attribute{"sides"_L1, isSides},
};

bool isValueOf(const QString &name, const QString &value)
{
    const auto *attribute = std::ranges::find(kAttributes, name, &Attribute::name);
    return attribute != kAttributes.end() && attribute->takes(value);
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
