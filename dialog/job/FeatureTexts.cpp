#include "dialog/job/FeatureTexts.h"

#include "dialog/host/CustomParameters.h"
#include "dialog/job/LengthUnit.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QStringList>

namespace {

QString listed(const QStringList &texts)
{
    return texts.join(QCoreApplication::translate("FeatureTexts", ", "));
}

QString textOfValue(const CustomParameter &parameter)
{
    return parameter.kind == CustomParameter::Kind::Points ? lengthText(parameter.value.toDouble())
                                                           : displayText(parameter.value);
}

QString customText(const QList<CustomParameter> &parameters)
{
    const QString hidden = QString(4, QChar(0x2022));
    QStringList texts;
    for (const CustomParameter &parameter : parameters) {
        const QString value = isSecret(parameter) ? hidden : textOfValue(parameter);
        texts += QCoreApplication::translate("FeatureTexts", "%1 %2").arg(parameter.text, value);
    }
    return listed(texts);
}

/// The texts of several choices; null when one of them is none of the option's.
QString textOfSeveral(ppd_option_t *option, const QString &names)
{
    QStringList texts;
    for (const QString &name : names.split(u',')) {
        const ppd_choice_t *choice = findChoice(option, name);
        if (!choice)
            return {};
        texts += ppdText(choice->text);
    }
    return listed(texts);
}

QString limitSentence(const CustomParameter &parameter, const char *sentence, double limit)
{
    return QCoreApplication::translate("FeatureTexts", sentence)
        .arg(parameter.text, QLocale().toString(limit));
}

} // namespace

QString valueText(ppd_file_t *ppd, const QString &keyword, const QString &value)
{
    ppd_option_t *option = findOption(ppd, keyword);
    if (const ppd_choice_t *choice = findChoice(option, value)) {
        const QString text = ppdText(choice->text);
        return text.isEmpty() ? displayText(value) : text;
    }
    const QList<CustomParameter> parameters = parametersOf(value, customParameters(ppd, keyword));
    const QString text =
        parameters.isEmpty() ? textOfSeveral(option, value) : customText(parameters);
    return text.isEmpty() ? displayText(value) : text;
}

QString faultText(const CustomParameter &parameter)
{
    switch (faultOf(parameter)) {
    case ParameterFault::NotANumber:
        return QCoreApplication::translate("FeatureTexts", "%1 is a number.").arg(parameter.text);
    case ParameterFault::TooSmall:
        return limitSentence(parameter, QT_TRANSLATE_NOOP("FeatureTexts", "%1 is at least %2."),
                             parameter.least);
    case ParameterFault::TooLarge:
        return limitSentence(parameter, QT_TRANSLATE_NOOP("FeatureTexts", "%1 is at most %2."),
                             parameter.greatest);
    case ParameterFault::TooShort:
        return limitSentence(parameter,
                             QT_TRANSLATE_NOOP("FeatureTexts", "%1 has at least %2 characters."),
                             parameter.least);
    case ParameterFault::TooLong:
        return limitSentence(parameter,
                             QT_TRANSLATE_NOOP("FeatureTexts", "%1 has at most %2 characters."),
                             parameter.greatest);
    case ParameterFault::NotDigits:
        return QCoreApplication::translate("FeatureTexts", "%1 consists of digits.")
            .arg(parameter.text);
    case ParameterFault::None:
        break;
    }
    return {};
}
