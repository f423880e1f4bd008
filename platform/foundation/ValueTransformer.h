#pragma once

#include "platform/Export.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

/// Turns a bound value into what a control shows, such as a boolean into a text colour.
class VELKARO_PLATFORM_EXPORT ValueTransformer
{
public:
    virtual ~ValueTransformer() = default;

    /// The kind of value that transformedValue() answers.
    virtual QMetaType transformedValueClass() const = 0;

    /// Whether reverseTransformedValue() answers anything.
    virtual bool allowsReverseTransformation() const = 0;

    /// `value` is invalid where the bound key has none.
    virtual QVariant transformedValue(const QVariant &value) const = 0;

    /// The value that gives this result; invalid where there is none.
    virtual QVariant reverseTransformedValue(const QVariant &value) const = 0;

    /// Registers a transformer for the process; a later one under the same name replaces it.
    static void setValueTransformer(std::shared_ptr<const ValueTransformer> transformer,
                                    const QString &forName);

    /// The transformer registered under the name; null when there is none.
    static std::shared_ptr<const ValueTransformer> valueTransformerForName(const QString &name);
};
