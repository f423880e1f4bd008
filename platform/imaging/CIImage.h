#pragma once

#include "platform/Export.h"
#include "platform/imaging/ColorTransform.h"

#include <QtCore/QMetaType>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <memory>

class DecodedPicture;

/// An image as a recipe: a decoded picture, and the colour change to be made to it. Immutable; a
/// filter answers a new recipe over the same picture and touches no pixel. CIContext evaluates
/// the recipe when it is drawn.
class VELKARO_PLATFORM_EXPORT CIImage
{
public:
    /// The picture of a TIFF or PNG file, decoded and converted to sRGB. Null if the file cannot
    /// be read, is damaged or cut short, or claims more than 134 million pixels. A file that is
    /// replaced later does not change the image.
    static std::shared_ptr<const CIImage> imageWithContentsOfFile(const QString &path);

    /// The same for a picture that is already decoded: its values are taken as sRGB, whatever
    /// colour space it names. Null for a null picture.
    static std::shared_ptr<const CIImage> imageWithPicture(const QImage &picture);

    /// The picture's rectangle in pixels, with its origin at (0, 0). Never empty.
    QRect extent() const;

    /// The recipe that does what this one does, and then `change`. For filters.
    std::shared_ptr<const CIImage> imageByApplying(const ColorTransform &change) const;

    /// For drawing.
    const DecodedPicture &picture() const { return *m_picture; }
    const ColorTransform &change() const { return m_change; }

private:
    CIImage(std::shared_ptr<const DecodedPicture> picture, const ColorTransform &change);

    std::shared_ptr<const DecodedPicture> m_picture;
    ColorTransform m_change;
};

Q_DECLARE_METATYPE(std::shared_ptr<const CIImage>)
