#include "dialog/replay/ScriptField.h"

#include "dialog/host/HostOperationNames.h"

#include <QtCore/QJsonArray>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Check = bool (*)(const QJsonValue &);

bool isText(const QJsonValue &value)
{
    return value.isString();
}

bool isTextOrNull(const QJsonValue &value)
{
    return value.isString() || value.isNull();
}

bool isNumber(const QJsonValue &value)
{
    return value.isDouble();
}

bool isNumberOrNull(const QJsonValue &value)
{
    return value.isDouble() || value.isNull();
}

bool isBoolean(const QJsonValue &value)
{
    return value.isBool();
}

bool isObject(const QJsonValue &value)
{
    return value.isObject();
}

bool isTicketValue(const QJsonValue &value)
{
    return value.isString() || value.isDouble() || value.isBool();
}

bool isTicketValueOrNull(const QJsonValue &value)
{
    return isTicketValue(value) || value.isNull();
}

template <Check check> bool isListOf(const QJsonValue &value)
{
    const QJsonArray list = value.toArray();
    return value.isArray() && std::all_of(list.begin(), list.end(), check);
}

template <Check check> bool isMapOf(const QJsonValue &value)
{
    const QJsonObject map = value.toObject();
    return value.isObject() && std::all_of(map.begin(), map.end(), check);
}

bool isPaper(const QJsonValue &value)
{
    static constexpr ScriptField fields[] = {
        {"name", FieldType::Text},
        {"ppdName", FieldType::TextOrNull},
        {"width", FieldType::Number},
        {"height", FieldType::Number},
    };
    return value.isObject() && checkFields(value.toObject(), fields).isNull();
}

bool isStringsSource(const QJsonValue &value)
{
    return value.toString() == "bundle"_L1 || value.toString() == "keys"_L1;
}

bool isHostOperation(const QJsonValue &value)
{
    return hostOperationNamed(value.toString()).has_value();
}

bool isButtonIndex(const QJsonValue &value)
{
    const double index = value.toDouble(-1);
    return value.isDouble() && index >= 0 && index <= std::numeric_limits<int>::max() &&
           index == std::floor(index);
}

bool isAnswer(const QJsonValue &value)
{
    const QJsonObject answer = value.toObject();
    const bool button = !answer.contains("button"_L1) || isButtonIndex(answer["button"_L1]);
    const bool suppress = !answer.contains("suppress"_L1) || answer["suppress"_L1].isBool();
    return value.isObject() && button && suppress;
}

struct TypeRule
{
    Check check;
    const char *expected;
};

// In the order of FieldType.
constexpr std::array<TypeRule, 15> kTypes = {{
    {isText, "a string"},
    {isTextOrNull, "a string or null"},
    {isNumber, "a number"},
    {isNumberOrNull, "a number or null"},
    {isBoolean, "true or false"},
    {isObject, "an object"},
    {isListOf<isText>, "a list of strings"},
    {isMapOf<isText>, "an object whose members are strings"},
    {isMapOf<isBoolean>, "an object whose members are true or false"},
    {isMapOf<isTicketValue>, "an object whose members are strings, numbers or booleans"},
    {isTicketValueOrNull, "a string, a number, a boolean or null"},
    {isPaper, "an object with name (a string), ppdName (a string or null), width and height "
              "(numbers)"},
    {isStringsSource, "\"bundle\" or \"keys\""},
    {isListOf<isHostOperation>, "a list of optional callback operations"},
    {isListOf<isAnswer>, "a list of objects with button (a whole number from 0) and suppress "
                         "(true or false)"},
}};

QString checkField(const QJsonObject &object, const ScriptField &field)
{
    const QLatin1String name(field.name);
    if (!object.contains(name))
        return field.required ? u"\"%1\" is missing"_s.arg(name) : QString();
    const TypeRule &rule = kTypes.at(static_cast<std::size_t>(field.type));
    if (rule.check(object.value(name)))
        return {};
    return u"\"%1\" must be %2"_s.arg(name, QLatin1String(rule.expected));
}

} // namespace

QString checkFields(const QJsonObject &object, std::span<const ScriptField> fields)
{
    for (const ScriptField &field : fields) {
        QString fault = checkField(object, field);
        if (!fault.isNull())
            return fault;
    }
    return {};
}
