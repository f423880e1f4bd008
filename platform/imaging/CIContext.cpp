#include "platform/imaging/CIContext.h"

#include "platform/imaging/CIImage.h"
#include "platform/imaging/ChannelTables.h"
#include "platform/imaging/LuminanceTable.h"
#include "platform/imaging/PixelEvaluation.h"

struct CIContext::Tables
{
    ChannelTables channels;
    LuminanceTable luminance;
};

namespace {

// Makes the target one that the image can be drawn into.
void prepareTarget(const CIImage &image, QImage &target)
{
    const bool alpha = image.picture().hasAlpha() || !image.change().keepsAlpha();
    const QImage::Format format = alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    // A shared target would be copied by the first write, pixels that are about to be replaced.
    if (target.format() != format || target.size() != image.extent().size() || !target.isDetached())
        target = QImage(image.extent().size(), format);
}

QRgb *rowOf(QImage &target, int y)
{
    return reinterpret_cast<QRgb *>(target.scanLine(y));
}

// The picture as few long runs of pixels: one, where nothing lies between the rows.
struct Runs
{
    int rows;
    int length;
};

Runs runsOf(const DecodedPicture &picture, const QImage &target)
{
    const qsizetype pixelBytes = target.width() * qsizetype(sizeof(QRgb));
    if (target.bytesPerLine() == pixelBytes && picture.hasTightRows())
        return {1, target.width() * target.height()};
    return {target.height(), target.width()};
}

void drawChannels(const DecodedPicture &picture, const ChannelTables &tables, QImage &target)
{
    const Runs runs = runsOf(picture, target);
    for (int y = 0; y < runs.rows; ++y) {
        if (picture.hasAlpha())
            tables.mapWithAlpha(picture.row(y), rowOf(target, y), runs.length);
        else
            tables.mapOpaque(picture.row(y), rowOf(target, y), runs.length);
    }
}

void drawLuminance(const DecodedPicture &picture, const LuminanceTable &table, QImage &target)
{
    const Runs runs = runsOf(picture, target);
    for (int y = 0; y < runs.rows; ++y) {
        const quint16 *luminance = picture.luminanceRow(y);
        if (!picture.hasAlpha())
            table.mapOpaque(luminance, rowOf(target, y), runs.length);
        else if (picture.isDeep())
            table.mapWithAlpha(luminance, picture.deepRow(y), rowOf(target, y), runs.length);
        else
            table.mapWithAlpha(luminance, picture.row(y), rowOf(target, y), runs.length);
    }
}

void drawPixels(const CIImage &image, QImage &target)
{
    for (int y = 0; y < target.height(); ++y)
        evaluateRow(image.picture(), y, image.change(), rowOf(target, y));
}

} // namespace

CIContext::CIContext() : m_tables(std::make_unique<Tables>()) {}

CIContext::~CIContext() = default;

void CIContext::drawImage(const std::shared_ptr<const CIImage> &image, QImage &target)
{
    if (!image) {
        target = QImage();
        return;
    }
    prepareTarget(*image, target);
    if (target.isNull())
        return;
    const auto ramp = image->change().luminanceRamp();
    if (image->change().separatesChannels() && !image->picture().isDeep()) {
        m_tables->channels.build(image->change(), !image->picture().hasAlpha());
        drawChannels(image->picture(), m_tables->channels, target);
    } else if (ramp && LuminanceTable::isFineEnoughFor(*ramp)) {
        m_tables->luminance.build(*ramp);
        drawLuminance(image->picture(), m_tables->luminance, target);
    } else {
        drawPixels(*image, target);
    }
}
