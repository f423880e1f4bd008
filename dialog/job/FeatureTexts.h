#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QString>

struct CustomParameter;

/// What people read of a value that is marked or sent (PPDMark): the text of the choice, of several
/// choices, or of a value of the user's own; the value itself where the PPD has no text of it. What
/// is secret is not told.
QString valueText(ppd_file_t *ppd, const QString &keyword, const QString &value);

/// One sentence on what is wrong with the parameter's value; null when it is good.
QString faultText(const CustomParameter &parameter);
