#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// A standard attribute of IPP that says the same as marked choices do: a server or a filter may go
/// by the one or by the others.
struct AttributeRule
{
    QList<PPDMark> marks; ///< all of them are marked
    QString attribute;
    QString value;

    bool operator==(const AttributeRule &) const = default;
};

/// The rules that a bundle brings (PDEStandardAttributes), and what is wrong with its entry.
struct AttributeRules
{
    QList<AttributeRule> rules;
    int wrongRow = 0; ///< counted from 1: the first that is no rule; 0: all are
};

/// From the entry of the bundle; no rules without one.
AttributeRules attributeRules(const QVariant &entry);
