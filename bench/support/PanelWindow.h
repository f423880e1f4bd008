#pragma once

#include "dialog/host/HostCallback.h"
#include "dialog/host/PPDFile.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtWidgets/QStackedWidget>

#include <memory>

class Bundle;
class VKInkColorSettingPDE;
class VKInkPrintSetting14PDE;

/// Opens the PPD, defaults marked. Ends the program when it cannot.
PPDHandle openBenchPPD(const QString &path);

/// Both panels over a PPD in a window, as the dialog has them: the real host object, the real
/// bundle and its views; one panel on screen, the other behind it.
class PanelWindow
{
public:
    /// Creates both panels over the PPD and has them read their values. Nothing is shown yet.
    explicit PanelWindow(PPDHandle ppd);
    ~PanelWindow();
    PanelWindow(const PanelWindow &) = delete;
    PanelWindow &operator=(const PanelWindow &) = delete;

    /// Takes the panel's view into the window and shows it, the other panel leaves the screen.
    /// Painted when it returns.
    void showPrint();
    void showColor();

    VKInkPrintSetting14PDE &print() { return *m_print; }
    VKInkColorSettingPDE &color() { return *m_color; }

    /// The panel's control of the keyword.
    PopUpButton *popUp(const char *keyword) const;

    /// A user's pick of an item, until everything that it has changed is painted.
    static void pick(PopUpButton &popup, int index);

    /// Paints the whole of the panel that is on screen.
    void repaint();

    /// Lets everything that is posted happen: layouts, then painting.
    static void settle();

private:
    PPDHandle m_ppd;
    std::shared_ptr<Bundle> m_bundle;
    std::shared_ptr<HostCallback> m_host;
    QStackedWidget m_window;
    std::unique_ptr<VKInkPrintSetting14PDE> m_print;
    std::unique_ptr<VKInkColorSettingPDE> m_color;
};
