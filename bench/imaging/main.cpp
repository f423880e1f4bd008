// What one change of a slider costs from the changed value to the drawn picture: this system's
// rendering, OpenCV's table look-up, Qt's colour-space chain, and a plain copy of the picture.
// Everything runs in one thread and counts by its best repetition; the contenders take turns in
// rounds of several repetitions, so that each finds its memory in the caches as the next change of
// a dragged slider does. Look at the ratios, of several runs: a machine in a slow phase slows
// computing down and leaves copying alone.

#include "bench/imaging/Peers.h"

#include <QtCore/QThreadPool>

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <limits>
#include <vector>

namespace {

constexpr int kRounds = 3;

struct Contender
{
    const char *name;
    std::function<void(const Sliders &)> render;
    double best = std::numeric_limits<double>::infinity(); ///< seconds
    long faults = 0;                                       ///< page faults after the first render
};

/// Slow shades and fine grain: every value of every channel, no two rows alike.
QImage somePicture(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    quint32 grain = 1;
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            grain = grain * 1664525U + 1013904223U;
            const int noise = int(grain >> 28);
            row[x] = qRgb((x * 239 / size.width() + noise) & 255,
                          (y * 239 / size.height() + noise) & 255,
                          ((x + y) * 239 / (size.width() + size.height()) + noise) & 255);
        }
    }
    return picture;
}

/// A change that was not rendered the time before.
Sliders change(int repetition)
{
    const auto value = [repetition](int step) { return repetition * step % 41 - 20; };
    return {value(1), value(3), value(5), value(7), value(11)};
}

long pageFaults()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

void run(Contender &contender, int repetition)
{
    const Sliders sliders = change(repetition);
    const long faultsBefore = pageFaults();
    const auto start = std::chrono::steady_clock::now();
    contender.render(sliders);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    contender.best = std::min(contender.best, taken.count());
    if (repetition > 0)
        contender.faults += pageFaults() - faultsBefore;
}

void printRow(const Contender &contender, const Contender &ours, int pixels)
{
    std::printf("  %-26s %10.1f us %8.3f ns/pixel %8.2f x ours %8ld faults\n", contender.name,
                contender.best * 1e6, contender.best * 1e9 / pixels, contender.best / ours.best,
                contender.faults);
}

void printGoal(const char *text, double reached, double goal, bool atLeast)
{
    const bool met = atLeast ? reached >= goal : reached <= goal;
    std::printf("  %-6s %s: %.2f (%s %g)\n", met ? "ok" : "MISSED", text, reached,
                atLeast ? "at least" : "at most", goal);
}

double fastest(const Contender &one, const Contender &other)
{
    return std::min(one.best, other.best);
}

void measure(QSize size)
{
    const QImage picture = somePicture(size);
    const auto image = CIImage::imageWithPicture(picture);
    const int pixels = size.width() * size.height();
    Render render;
    QImage colorTarget;
    QImage monoTarget;
    QImage copy = picture.copy();
    std::vector<Contender> contenders{
        {"ours, colour", [&](const Sliders &s) { render.color(image, s, colorTarget); }},
        {"ours, mono", [&](const Sliders &s) { render.mono(image, s, monoTarget); }},
        {"memcpy",
         [&](const Sliders &) {
             std::memcpy(copy.bits(), picture.constBits(), std::size_t(picture.sizeInBytes()));
         }},
        {"Qt chain, 16-bit linear", qtChain(picture, true)},
        {"Qt chain, 8-bit linear", qtChain(picture, false)},
#ifdef VELKARO_BENCH_OPENCV
        {"OpenCV LUT, 3 bytes", openCvLookUp(picture, 3, render)},
        {"OpenCV LUT, 4 bytes", openCvLookUp(picture, 4, render)},
#endif
    };
    const int repetitions = std::clamp(20'000'000 / pixels, 4, 200);
    for (int round = 0; round < kRounds; ++round)
        for (Contender &contender : contenders)
            for (int repetition = 0; repetition < repetitions; ++repetition)
                run(contender, round * repetitions + repetition);

    std::printf("%d x %d, best of %d\n", size.width(), size.height(), kRounds * repetitions);
    const Contender &ours = contenders[0];
    for (const Contender &contender : contenders)
        printRow(contender, ours, pixels);
#ifdef VELKARO_BENCH_OPENCV
    printGoal("fastest peer (OpenCV) / ours", fastest(contenders[5], contenders[6]) / ours.best, 2,
              true);
#endif
    printGoal("Qt chain, 16-bit / ours", contenders[3].best / ours.best, 20, true);
    if (size == QSize(1024, 768))
        printGoal("ours / memcpy", ours.best / contenders[2].best, 8, false);
    printGoal("mono / colour", contenders[1].best / ours.best, 1, false);
    printGoal("page faults of ours", double(ours.faults + contenders[1].faults), 0, false);
}

} // namespace

int main()
{
#ifndef VELKARO_BENCH_OPENCV
    std::puts("*** BUILT WITHOUT OpenCV (package libopencv-dev): THE FASTEST PEER IS MISSING ***");
#endif
    // Qt shares the conversion of a large picture out among the threads of this pool.
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    for (const QSize size : {QSize(256, 256), QSize(1024, 768), QSize(4000, 3000)})
        measure(size);
}
