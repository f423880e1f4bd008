#pragma once

#include "platform/foundation/ValueTransformer.h"

/// Turns the panel's boolean states into the text colours of its labels: the ordinary one for true,
/// the dimmed one for everything else.
class ColorTransformer : public ValueTransformer
{
public:
    QMetaType transformedValueClass() const override;
    bool allowsReverseTransformation() const override { return false; }
    QVariant transformedValue(const QVariant &value) const override;
    QVariant reverseTransformedValue(const QVariant &value) const override;
};
