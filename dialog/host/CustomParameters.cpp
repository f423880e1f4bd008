#include "dialog/host/CustomParameters.h"

#include "platform/ppd/PPDText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kCustom = "Custom"_L1;
constexpr auto kCustomPrefix = "Custom."_L1;

/// The shortest text that libcups reads the same number from.
QString numberText(float number)
{
    std::array<char, 64> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

CustomParameter numberParameter(CustomParameter made, CustomParameter::Kind kind, float least,
                                float greatest, float value)
{
    made.kind = kind;
    made.least = static_cast<double>(least);
    made.greatest = static_cast<double>(greatest);
    made.value = numberText(value);
    return made;
}

CustomParameter textParameter(CustomParameter made, CustomParameter::Kind kind,
                              const ppd_cparam_t &from)
{
    made.kind = kind;
    made.least = from.minimum.custom_string;
    made.greatest = from.maximum.custom_string;
    made.value = QString::fromUtf8(from.current.custom_string);
    return made;
}

CustomParameter parameterOf(const ppd_cparam_t &from)
{
    using enum CustomParameter::Kind;
    CustomParameter made;
    made.name = ppdName(from.name);
    made.text = ppdText(from.text);
    switch (from.type) {
    case PPD_CUSTOM_INT:
        made.least = from.minimum.custom_int;
        made.greatest = from.maximum.custom_int;
        made.value = QString::number(from.current.custom_int);
        return made;
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE:
        return numberParameter(made, Number, from.minimum.custom_curve, from.maximum.custom_curve,
                               from.current.custom_curve);
    case PPD_CUSTOM_REAL:
        return numberParameter(made, Number, from.minimum.custom_real, from.maximum.custom_real,
                               from.current.custom_real);
    case PPD_CUSTOM_POINTS:
        return numberParameter(made, Points, from.minimum.custom_points, from.maximum.custom_points,
                               from.current.custom_points);
    case PPD_CUSTOM_PASSCODE:
        return textParameter(made, Passcode, from);
    case PPD_CUSTOM_PASSWORD:
        return textParameter(made, Password, from);
    default:
        return textParameter(made, Text, from);
    }
}

bool isTextual(const CustomParameter &parameter)
{
    using enum CustomParameter::Kind;
    return parameter.kind == Text || parameter.kind == Passcode || parameter.kind == Password;
}

/// A text as a collection holds it.
QString quotedText(QString value)
{
    value.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1);
    return u'"' + value + u'"';
}

QString collectionOf(const QList<CustomParameter> &parameters)
{
    QStringList members;
    for (const CustomParameter &parameter : parameters)
        members += parameter.name + u'=' +
                   (isTextual(parameter) ? quotedText(parameter.value) : parameter.value);
    return u'{' + members.join(u' ') + u'}';
}

ParameterFault faultOfText(const CustomParameter &parameter)
{
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    if (parameter.kind == CustomParameter::Kind::Passcode &&
        !std::ranges::all_of(parameter.value, isDigit))
        return ParameterFault::NotDigits;
    const auto size = static_cast<double>(parameter.value.size());
    if (size < parameter.least)
        return ParameterFault::TooShort;
    return size > parameter.greatest ? ParameterFault::TooLong : ParameterFault::None;
}

} // namespace

QList<CustomParameter> customParameters(ppd_file_t *ppd, const QString &keyword)
{
    ppd_coption_t *option = findOption(ppd, keyword)
                                ? ppdFindCustomOption(ppd, ppdBytes(keyword).constData())
                                : nullptr;
    if (!option || isSameName(keyword, u"PageSize"_s) || isSameName(keyword, u"PageRegion"_s))
        return {};
    QList<std::pair<int, CustomParameter>> ordered;
    for (const ppd_cparam_t *from = ppdFirstCustomParam(option); from;
         from = ppdNextCustomParam(option))
        ordered += {from->order, parameterOf(*from)};
    std::ranges::stable_sort(ordered, {}, &std::pair<int, CustomParameter>::first);
    QList<CustomParameter> parameters;
    for (const auto &[order, parameter] : std::as_const(ordered))
        parameters += parameter;
    return parameters;
}

bool isSecret(const CustomParameter &parameter)
{
    using enum CustomParameter::Kind;
    return parameter.kind == Passcode || parameter.kind == Password;
}

ParameterFault faultOf(const CustomParameter &parameter)
{
    if (isTextual(parameter))
        return faultOfText(parameter);
    bool isNumber = false;
    const double value = parameter.kind == CustomParameter::Kind::Integer
                             ? parameter.value.toInt(&isNumber)
                             : parameter.value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return ParameterFault::NotANumber;
    if (value < parameter.least)
        return ParameterFault::TooSmall;
    return value > parameter.greatest ? ParameterFault::TooLarge : ParameterFault::None;
}

QString customChoice(const QList<CustomParameter> &parameters)
{
    if (parameters.isEmpty())
        return {};
    return parameters.size() == 1 ? kCustomPrefix + parameters[0].value : collectionOf(parameters);
}

QString customForm(const QList<CustomParameter> &parameters)
{
    if (parameters.size() == 1)
        return kCustomPrefix + parameters[0].name;
    QStringList members;
    for (const CustomParameter &parameter : parameters)
        members += parameter.name + u"=…"_s;
    return u'{' + members.join(u' ') + u'}';
}

QList<CustomParameter> parametersOf(const QString &choice, QList<CustomParameter> parameters)
{
    if (choice.startsWith(kCustomPrefix, Qt::CaseInsensitive) && parameters.size() == 1) {
        parameters[0].value = choice.mid(kCustomPrefix.size());
        return parameters;
    }
    if (!choice.startsWith(u'{') || !choice.endsWith(u'}'))
        return {};
    cups_option_t *members = nullptr;
    const QByteArray inner = choice.sliced(1, choice.size() - 2).toUtf8();
    const int count = cupsParseOptions(inner.constData(), 0, &members);
    bool areKnown = true;
    for (int index = 0; index < count; ++index) {
        const QString name = QString::fromUtf8(members[index].name);
        const auto found = std::ranges::find_if(
            parameters, [&](const CustomParameter &one) { return isSameName(one.name, name); });
        areKnown = areKnown && found != parameters.end();
        if (found != parameters.end())
            found->value = QString::fromUtf8(members[index].value);
    }
    cupsFreeOptions(count, members);
    return areKnown && count > 0 ? parameters : QList<CustomParameter>();
}

QString withoutSecrets(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    QList<CustomParameter> parameters = parametersOf(choice, customParameters(ppd, keyword));
    if (!std::ranges::any_of(parameters, isSecret))
        return choice;
    for (CustomParameter &parameter : parameters)
        if (isSecret(parameter))
            parameter.value = QString(std::max(1, static_cast<int>(parameter.least)), u'0');
    return customChoice(parameters);
}

bool isCustomName(const QString &choice)
{
    return choice.compare(kCustom, Qt::CaseInsensitive) == 0;
}
