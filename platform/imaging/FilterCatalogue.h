#pragma once

#include "platform/imaging/CIColor.h"
#include "platform/imaging/CIVector.h"
#include "platform/imaging/ColorTransform.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <span>

/// One keyed input of a filter beside its image. The kind of the default is the kind of the
/// input: any number for a number, a CIVector or a CIColor for theirs.
struct FilterInput
{
    QString key;
    QVariant defaultValue;
};

/// The current value of an input that the filter has, by its key.
using FilterInputValues = std::function<QVariant(const QString &key)>;

/// A filter by its name, its inputs, and what it does to a colour.
struct FilterDescription
{
    QString name;
    std::span<const FilterInput> inputs;
    ColorTransform (*change)(const FilterInputValues &values);
};

/// Saturation about the luminance, then the brightness added, then contrast about 0.5.
ColorTransform colorControls(double saturation, double brightness, double contrast);

/// The luminance times the colour, mixed with the original by the intensity (0 keeps the
/// original, 1 leaves nothing of it). The colour's alpha has no effect.
ColorTransform colorMonochrome(const CIColor &color, double intensity);

/// The three filters of the system; null for a name that is none of them.
const FilterDescription *filterNamed(const QString &name);

/// True if `value` is of the kind of `input` and finite.
bool acceptsValue(const FilterInput &input, const QVariant &value);
