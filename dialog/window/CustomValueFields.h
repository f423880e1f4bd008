#pragma once

#include "dialog/host/CustomParameters.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <vector>

class QFormLayout;
class QLabel;

/// The fields for a value of the user's own of a feature of the printer, one for each parameter,
/// with a text below that says what is wrong with what was typed.
class CustomValueFields : public QWidget
{
    Q_OBJECT

public:
    /// The fields are named after the keyword and the parameter: "WeightGrams".
    explicit CustomValueFields(const QString &keyword, QWidget *parent = nullptr);

    /// Shows the parameters with their values, and tells nobody. A number that is out of its limits
    /// becomes the nearest one that is not.
    void showValues(const QList<CustomParameter> &parameters);

    /// The parameters as they stand in the fields.
    QList<CustomParameter> values() const;

    bool isAcceptable() const;

Q_SIGNALS:
    /// The user has changed a value, acceptable or not.
    void edited();

private:
    struct Field
    {
        QWidget *control;
        std::function<QString()> value;
        std::function<void(const QString &)> show;
    };

    void build();
    Field newField(const CustomParameter &parameter);
    Field newInteger(const CustomParameter &parameter);
    Field newNumber(const CustomParameter &parameter);
    Field newLength(const CustomParameter &parameter);
    Field newText(const CustomParameter &parameter);
    void judge();

    const QString m_keyword;
    QList<CustomParameter> m_parameters;
    std::vector<Field> m_fields; ///< one for each parameter
    QFormLayout *m_form;
    QLabel *m_validation;
    bool m_isShowing = false; ///< values of the PPD's, not of a user's
};
