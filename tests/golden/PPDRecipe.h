#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

/// A changed PPD, told by how it is made instead of by its text:
///
///     {"base": "velkaro-px-t900.ppd", "edits": [{"edit": "drop", "keyword": "VKJpeg"}]}
///
/// The edits, made in order on the base's text:
///
/// | edit         | members               |                                                  |
/// |--------------|-----------------------|--------------------------------------------------|
/// | drop         | keyword               | the option is not there                          |
/// | dropChoice   | keyword, choice       | nor the choice (a default stays as it is)        |
/// | only         | keyword, choice       | the choice is the only one, and the default      |
/// | default      | keyword, choice       | another default, which need not be a choice      |
/// | noDefault    | keyword               | nothing is said of a default                     |
/// | rename       | keyword, to           | the option under another keyword                 |
/// | renameChoice | keyword, choice, to   | the choice under another name                    |
/// | title        | keyword, choice, to   | the choice's text                                |
/// | type         | keyword, to           | "PickMany", "Boolean"                            |
/// | twice        | keyword               | the option stands a second time, in a group of its own
/// | | addChoice    | keyword, choice       | one more choice, the first one                   | |
/// model        | to                    | another model name                               | |
/// attribute    | keyword, to           | a quoted attribute; null: it is not there        | |
/// constraint   | one, other            | both as "*KEYWORD CHOICE"                        | |
/// noCustom     |                       | no papers of the user's own                      |
///
/// An edit that finds nothing to change changes nothing.

/// The PPD's text; `base` is the text of its base.
QByteArray preparedPPD(const QJsonObject &recipe, QByteArray base);

/// The file's name of the recipe's base.
QString baseOfRecipe(const QJsonObject &recipe);
