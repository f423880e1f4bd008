// What a user waits for while dragging a slider: from the slider's signal to the painted picture of
// 256 x 256 pixels, in the real panel with its real view, against a bare repaint of the same
// picture.
#include "bench/support/Timing.h"
#include "colorsettings/VKInkColorSettingPDE.h"
#include "dialog/host/HostCallback.h"
#include "dialog/host/PPDFile.h"
#include "platform/foundation/Bundle.h"
#include "platform/imaging/CIImage.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/built/BuiltFiles.h"

#include <QtWidgets/QApplication>

namespace {

constexpr int kSide = 256; // pixels
constexpr int kRounds = 5;
constexpr int kMoves = 200;

QImage somePicture()
{
    QImage picture(kSide, kSide, QImage::Format_RGB32);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x)
            picture.setPixel(x, y, qRgb(x, y, (x * y) & 255));
    }
    return picture;
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
    printHead("Picture painted, 256 x 256", "slider", "bare repaint");
    for (const char *name : {"brightnessSlider", "redSlider"}) {
        auto &slider = *panel.loadedView()->findChild<FractionSlider *>(QLatin1String(name));
        Contender bare{[&picture] { picture.repaint(); }};
        Contender change{[&slider] {
            slider.moveByUser(slider.doubleValue() > 0 ? -5 : 5);
            QApplication::processEvents(); // paints the picture, the slider and its field
        }};
        compare({&change, &bare}, kRounds, kMoves);
        printRatio(name, change.microseconds, bare.microseconds, 11);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Bundle::setMainBundle(Bundle::open(builtBundle()));
    const auto opened = openPPD(samplePPD(QStringLiteral("velkaro-px-t900")));
    const auto host = std::make_shared<HostCallback>(opened->ppd.get());
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
