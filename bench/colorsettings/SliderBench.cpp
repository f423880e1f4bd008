// What a user waits for while dragging a slider: from the slider's signal to the painted picture of
// 256 x 256 pixels, in the real panel with its real view, against a bare repaint of the same
// picture. Medians; look at the ratios. At most 11 times the bare repaint is what is promised.

#include "colorsettings/VKInkColorSettingPDE.h"
#include "dialog/host/HostCallback.h"
#include "dialog/host/PPDFile.h"
#include "platform/foundation/Bundle.h"
#include "platform/imaging/CIImage.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QElapsedTimer>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>

namespace {

constexpr int kSide = 256; // pixels

QImage somePicture()
{
    QImage picture(kSide, kSide, QImage::Format_RGB32);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x)
            picture.setPixel(x, y, qRgb(x, y, (x * y) & 255));
    }
    return picture;
}

double medianMicroseconds(const std::function<void(int)> &step)
{
    std::array<double, 1001> times{};
    for (std::size_t i = 0; i < times.size(); ++i) {
        QElapsedTimer timer;
        timer.start();
        step(static_cast<int>(i));
        times[i] = static_cast<double>(timer.nsecsElapsed()) / 1000.0;
    }
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

void showPanel(VKInkColorSettingPDE &panel, QWidget &window)
{
    panel.restoreValuesAndReturnError(nullptr);
    QWidget *view = panel.panelView();
    view->setParent(&window);
    view->show();
    window.resize(900, 800);
    window.show();
    setKeyWindow(&window);
    panel.willShow();
    panel.inspectedPicture()->setGeometry(300, 0, kSide, kSide);
    panel.setRefImage(CIImage::imageWithPicture(somePicture()));
    panel.redrawEffectImage();
    QApplication::processEvents();
}

void measure(VKInkColorSettingPDE &panel)
{
    ImageView &picture = *panel.inspectedPicture();
    const double bare = medianMicroseconds([&](int) { picture.repaint(); });
    std::printf("%-24s %8.1f us\n", "bare repaint", bare);
    for (const char *name : {"brightnessSlider", "redSlider"}) {
        auto &slider = *panel.inspectedView()->findChild<FractionSlider *>(QLatin1String(name));
        const double change = medianMicroseconds([&](int i) {
            slider.moveByUser(i % 2 == 0 ? 5 : -5);
            QApplication::processEvents(); // paints the picture, the slider and its field
        });
        std::printf("%-24s %8.1f us %6.1f times\n", name, change, change / bare);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Bundle::setMainBundle(Bundle::open(QStringLiteral(PLUGIN_BUNDLE)));
    const OpenedPPD opened = openPPD(QStringLiteral(SAMPLE_PPD));
    const auto host = std::make_shared<HostCallback>(opened.ppd.get());
    host->willChangePPDOptionKeyValue(QStringLiteral("VKColorEnhancement"), QStringLiteral("ON"));
    PMPrintSettingsSetValue(&host->ticket(),
                            QStringLiteral("com.velkaro.print.PrintSettings.advancedcolorItem"),
                            true, false);
    VKInkColorSettingPDE panel;
    QWidget window;
    if (!panel.initWithCallback(host))
        return 1;
    showPanel(panel, window);
    measure(panel);
    return 0;
}
