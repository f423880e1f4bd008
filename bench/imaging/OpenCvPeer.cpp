#include "bench/imaging/Peers.h"

#include <opencv2/core.hpp>

#include <memory>

namespace {

struct Pictures
{
    cv::Mat source;
    cv::Mat target;
    cv::Mat table;
};

cv::Mat packed(const QImage &picture, int channels)
{
    const QImage pixels =
        picture.convertedTo(channels == 3 ? QImage::Format_BGR888 : QImage::Format_RGB32);
    cv::Mat mat(pixels.height(), pixels.width(), channels == 3 ? CV_8UC3 : CV_8UC4);
    for (int y = 0; y < pixels.height(); ++y)
        std::copy_n(pixels.constScanLine(y), pixels.width() * channels, mat.ptr<uchar>(y));
    return mat;
}

} // namespace

PeerRender openCvLookUp(const QImage &picture, int channels, Render &render)
{
    cv::setNumThreads(1);
    auto pictures = std::make_shared<Pictures>();
    pictures->source = packed(picture, channels);
    pictures->target = pictures->source.clone();
    pictures->table = cv::Mat(1, 256, pictures->source.type(), cv::Scalar::all(255));
    return [pictures, channels, &render](const Sliders &sliders) {
        const Tables tables = render.tables(sliders);
        auto *entry = pictures->table.ptr<uchar>();
        for (std::size_t i = 0; i < 256; ++i, entry += channels) {
            entry[0] = tables[2][i];
            entry[1] = tables[1][i];
            entry[2] = tables[0][i];
        }
        cv::LUT(pictures->source, pictures->table, pictures->target);
    };
}
