#include "platform/imaging/CIImage.h"

#include "platform/imaging/DecodedPicture.h"
#include "platform/imaging/PictureReader.h"

#include <utility>

CIImage::CIImage(std::shared_ptr<const DecodedPicture> picture, const ColorTransform &change)
    : m_picture(std::move(picture)), m_change(change)
{}

std::shared_ptr<const CIImage> CIImage::imageWithContentsOfFile(const QString &path)
{
    return imageWithPicture(readPicture(path));
}

std::shared_ptr<const CIImage> CIImage::imageWithPicture(const QImage &picture)
{
    auto decoded = std::make_shared<const DecodedPicture>(picture);
    if (decoded->size().isEmpty())
        return nullptr;
    return std::shared_ptr<const CIImage>(new CIImage(std::move(decoded), {}));
}

QRect CIImage::extent() const
{
    return {QPoint(0, 0), m_picture->size()};
}

std::shared_ptr<const CIImage> CIImage::imageByApplying(const ColorTransform &change) const
{
    return std::shared_ptr<const CIImage>(new CIImage(m_picture, m_change.then(change)));
}
