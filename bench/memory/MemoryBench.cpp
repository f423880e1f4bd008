// Whether the memory of the process grows with the picks of a session: media, qualities, colour
// modes, thicknesses and trays in turn, each painted, with both panels built and alerts answered.
#include "bench/support/BenchPrinter.h"
#include "bench/support/PanelWindow.h"
#include "platform/toolkit/AlertObserver.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <fstream>
#include <vector>

namespace {

constexpr int kWarmUp = 1000;
constexpr int kPicks = 10000;
constexpr int kSamples = 10;
// What the allocator may round; a pick that leaks 16 bytes grows by more.
constexpr long kReach = 128;

class Answerer : public AlertObserver
{
public:
    void alertShown(const ShownAlert &alert) override { alert.press(0); }
};

long residentKilobytes()
{
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * 4;
}

std::vector<PopUpButton *> popUps(const PanelWindow &window)
{
    std::vector<PopUpButton *> popUps;
    for (const char *keyword :
         {"VKMediaType", "VKResolution", "VKMonoColor", "VKColorPaperThick", "VKInputSlot"})
        popUps.push_back(window.popUp(keyword));
    return popUps;
}

// The next item that can be picked, round and round.
int nextItem(const PopUpButton &popup)
{
    int index = popup.currentIndex();
    do
        index = (index + 1) % popup.count();
    while (!popup.isItemEnabled(index) && index != popup.currentIndex());
    return index;
}

void pick(const std::vector<PopUpButton *> &popUps, int count)
{
    for (int done = 0; done < count; ++done) {
        PopUpButton &popup = *popUps[static_cast<std::size_t>(done) % popUps.size()];
        PanelWindow::pick(popup, nextItem(popup));
        // An alert that was answered is deleted by the event loop, which nobody runs here.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    PanelWindow window(openBenchPPD(writeBenchPrinter(folder.path(), kFewestChoices)));
    window.showColor();
    window.showPrint();
    Answerer answerer;
    AlertObserver::setAlertObserver(&answerer);
    const auto pickable = popUps(window);
    pick(pickable, kWarmUp);
    const long before = residentKilobytes();
    std::printf("Resident memory after %d picks: %ld KB\n", kWarmUp, before);
    long grown = 0;
    for (int sample = 1; sample <= kSamples; ++sample) {
        pick(pickable, kPicks / kSamples);
        grown = residentKilobytes() - before;
        std::printf("  %6d picks more: %+ld KB\n", sample * kPicks / kSamples, grown);
    }
    std::printf("Grown by %ld KB (at most %ld)%s\n", grown, kReach,
                grown <= kReach ? "" : " MISSED");
    return 0;
}
