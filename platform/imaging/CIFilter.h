#pragma once

#include "platform/Export.h"
#include "platform/imaging/CIColor.h"
#include "platform/imaging/CIFilterKeys.h"
#include "platform/imaging/CIImage.h"
#include "platform/imaging/CIVector.h"

#include <QtCore/QHash>
#include <QtCore/QVariant>

#include <memory>

struct FilterDescription;

/// A colour filter with keyed inputs. It computes nothing by itself: outputImage answers a recipe.
///
/// | Filter              | Key               | Kind    | Default                        |
/// |---------------------|-------------------|---------|--------------------------------|
/// | "CIColorControls"   | "inputSaturation" | number  | 1                              |
/// |                     | "inputBrightness" | number  | 0                              |
/// |                     | "inputContrast"   | number  | 1                              |
/// | "CIColorMatrix"     | "inputRVector"    | vector  | (1, 0, 0, 0)                   |
/// |                     | "inputGVector"    | vector  | (0, 1, 0, 0)                   |
/// |                     | "inputBVector"    | vector  | (0, 0, 1, 0)                   |
/// |                     | "inputAVector"    | vector  | (0, 0, 0, 1)                   |
/// |                     | "inputBiasVector" | vector  | (0, 0, 0, 0)                   |
/// | "CIColorMonochrome" | "inputColor"      | colour  | (0.6, 0.45, 0.3)               |
/// |                     | "inputIntensity"  | number  | 1                              |
///
/// All work on linear light (sRGB decoded) in double precision, and nothing is clamped between
/// filters. Colour controls: saturation about the luminance, then the brightness added, then
/// contrast about 0.5. Colour matrix: what comes out as red is the dot product of "inputRVector"
/// with (red, green, blue, alpha) plus the bias's x, and so on; the alpha is not multiplied into
/// the colours. Monochrome: the luminance (0.2126, 0.7152, 0.0722) times the colour, mixed with
/// the original by the intensity.
class VELKARO_PLATFORM_EXPORT CIFilter
{
public:
    /// A new filter with its defaults and without an image; null for a name not in the table.
    static std::unique_ptr<CIFilter> filterWithName(const QString &name);

    QString name() const;

    /// Puts every input back to its default. The image has no default, and stays.
    void setDefaults();

    /// Sets an input. A number may be of any integer or floating-point type and is kept as it was
    /// given: single precision stays single precision. An unknown key, a value of another kind
    /// and one that is not finite are ignored: the input keeps its former value. Under
    /// kCIInputImageKey the value is a `std::shared_ptr<const CIImage>`; a null one takes the
    /// image away.
    void setValue(const QVariant &value, const QString &forKey);
    void setValue(const CIVector &vector, const QString &forKey);
    void setValue(const CIColor &color, const QString &forKey);
    void setValue(const std::shared_ptr<const CIImage> &image, const QString &forKey);

    /// The input as it was set, or its default; under kCIInputImageKey and kCIOutputImageKey an
    /// image, which may be null. The invalid variant for an unknown key.
    QVariant valueForKey(const QString &key) const;
    /// The zero vector for a key that holds no vector.
    CIVector vectorForKey(const QString &key) const;
    /// 0 for a key that holds no number.
    double numberForKey(const QString &key) const;

    std::shared_ptr<const CIImage> inputImage() const { return m_inputImage; }

    /// The recipe of the input image followed by this filter with its inputs as they are now;
    /// later changes of the filter do not reach it. Null without an input image.
    std::shared_ptr<const CIImage> outputImage() const;

private:
    explicit CIFilter(const FilterDescription &description);

    const FilterDescription *m_description;
    QHash<QString, QVariant> m_values;
    std::shared_ptr<const CIImage> m_inputImage;
};
