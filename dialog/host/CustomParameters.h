#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QString>

/// One part of a value of the user's own that an option of a PPD takes beside its choices: a weight
/// in grams, a text to stamp. (Papers of the user's own sizes are a matter of their own: Papers.h.)
struct CustomParameter
{
    enum class Kind {
        Integer,
        Number,   ///< with a fraction
        Points,   ///< a length, in points
        Text,     ///< characters
        Passcode, ///< digits, not to be shown
        Password, ///< characters, not to be shown
    };

    QString name; ///< as the PPD spells it
    QString text; ///< what people read
    Kind kind = Kind::Integer;
    double least = 0;    ///< of numbers the value, of texts the characters
    double greatest = 0; ///< likewise
    QString value;       ///< as libcups writes numbers: with a decimal point

    bool operator==(const CustomParameter &) const = default;
};

/// The parameters of the option with the values that they have now, in the PPD's order. None: it
/// takes no values of the user's own, or is `PageSize`.
QList<CustomParameter> customParameters(ppd_file_t *ppd, const QString &keyword);

/// Whether the parameter's value is to be kept from being seen, and from being kept.
bool isSecret(const CustomParameter &parameter);

/// What is wrong with a value, if anything.
enum class ParameterFault { None, NotANumber, TooSmall, TooLarge, TooShort, TooLong, NotDigits };

ParameterFault faultOf(const CustomParameter &parameter);

/// The choice that stands for the values: "Custom.120", and with more than one parameter
/// "{Text="a b" Size=12}". Null without parameters.
QString customChoice(const QList<CustomParameter> &parameters);

/// How such a choice is typed, with the names of the parameters in the place of the values:
/// "Custom.Size", "{Text=… Size=…}".
QString customForm(const QList<CustomParameter> &parameters);

/// The parameters with the values of such a choice in their places; one that the choice leaves out
/// keeps its own. None: it is no choice of that form, or names a parameter that the option lacks.
QList<CustomParameter> parametersOf(const QString &choice, QList<CustomParameter> parameters);

/// The choice with zeros in the place of what is secret, for a text that others will read.
QString withoutSecrets(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// Whether the choice is one of the PPD's that stands for values of the user's own.
bool isCustomName(const QString &choice);
