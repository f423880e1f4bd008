#include "tests/colorsettings/ColorPictures.h"

#include "platform/toolkit/ImageView.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"

#include <QtCore/QDirIterator>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString copy = to + file.mid(from.size());
        EXPECT_TRUE(QDir().mkpath(QFileInfo(copy).path()));
        EXPECT_TRUE(QFile::copy(file, copy));
    }
}

} // namespace

ColorPictures::ColorPictures()
{
    copyFolder(builtBundle(), m_folder.path());
    write(u"Natural"_s, kNatural);
    write(u"Vivid"_s, kVivid);
    write(u"None"_s, kNone);
    m_bundle = Bundle::open(m_folder.path());
}

QString ColorPictures::path(const QString &name) const
{
    return m_folder.filePath(u"Resources/"_s + name + u".tiff"_s);
}

void ColorPictures::write(const QString &name, QRgb color, const QSize &size) const
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    EXPECT_TRUE(picture.save(path(name), "TIFF"));
}

void ColorPictures::editView(const QByteArray &text, const QByteArray &replacement) const
{
    const QString path = m_folder.filePath(u"Resources/VKInkColorSetting.ui"_s);
    QByteArray view = readFile(path);
    EXPECT_TRUE(view.contains(text));
    writeFile(path, view.replace(text, replacement));
}

QRgb shownColor(const ImageView &view)
{
    const QImage &image = view.image();
    if (image.isNull())
        return 0;
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first)
                return 0;
        }
    }
    return first;
}

bool isWithin(int levels, QRgb shown, QRgb expected)
{
    return std::abs(qRed(shown) - qRed(expected)) <= levels &&
           std::abs(qGreen(shown) - qGreen(expected)) <= levels &&
           std::abs(qBlue(shown) - qBlue(expected)) <= levels && qAlpha(shown) == 255;
}
