#pragma once

#include <QtGui/QImage>
#include <QtGui/QRgba64>

#include <random>

/// A picture of every kind of colour, the same at each run. `format` is one of 8 or 16 bits a
/// channel with red, green, blue and perhaps alpha.
inline QImage noise(QSize size, QImage::Format format)
{
    std::mt19937 random(20);
    QImage picture(size, format);
    const bool alpha = picture.hasAlphaChannel();
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const auto part = [&random] { return quint16(random() & 0xffff); };
            const QRgba64 color =
                QRgba64::fromRgba64(part(), part(), part(), alpha ? part() : quint16(0xffff));
            if (picture.depth() == 64)
                reinterpret_cast<QRgba64 *>(picture.scanLine(y))[x] = color;
            else
                reinterpret_cast<QRgb *>(picture.scanLine(y))[x] = color.toArgb32();
        }
    }
    return picture;
}

/// The 256 greys in one row, opaque.
inline QImage greyRamp()
{
    QImage ramp(256, 1, QImage::Format_RGB32);
    for (int i = 0; i < 256; ++i)
        ramp.setPixel(i, 0, qRgb(i, i, i));
    return ramp;
}
