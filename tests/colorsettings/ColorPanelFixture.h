#pragma once

#include "colorsettings/VKInkColorSettingPDE.h"
#include "dialog/host/HostCallback.h"
#include "dialog/host/PPDFile.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

/// A print dialog with a Color Settings panel: a real PPD, the real host, ticket and view.
struct ColorDialog
{
    /// The sample printer with this name, or a printer of the test's own.
    explicit ColorDialog(const QString &sample = QStringLiteral("velkaro-px-t900"));
    explicit ColorDialog(PPDHandle printer);
    ~ColorDialog();

    /// Creates the panel; what a dialog does first with it is left to the test.
    VKInkColorSettingPDE &create();

    /// Creates the panel where need be, tells it to restore its values, takes its view into the
    /// window and shows it.
    VKInkColorSettingPDE &show();

    /// A widget of the shown view.
    template <typename Widget> Widget &part(const char *name)
    {
        return *panel->loadedView()->findChild<Widget *>(QLatin1String(name));
    }

    QVariant ticket(const char *key) const;
    void setTicket(const char *key, const QVariant &value);
    QVariant pending(const char *keyword) const;
    QVariant content(const char *key) const;
    QString marked(const char *keyword) const;
    bool hasFlag(std::int32_t flag) const { return (panel->imageModeFlag() & flag) != 0; }

    /// Posts a notification of the Print Settings panel, with the host as its object.
    void post(const std::optional<QVariantMap> &userInfo);
    /// Posts that the colour mode is mono or not, or that the matching is natural or not.
    void postMono(bool mono);
    void postNatural(bool natural);
    /// Posts that the page setup has changed.
    void postPaper();

    /// What the panels asked of the host, as "KEYWORD=CHOICE", refused ones with " refused".
    QStringList calls;

    PPDHandle ppd;
    std::shared_ptr<HostCallback> host;
    std::unique_ptr<QWidget> window;
    std::unique_ptr<VKInkColorSettingPDE> panel;
};

/// A test with one dialog, the bundle as it is built, and no change remembered from a test before.
class ColorPanelTest : public testing::Test
{
protected:
    ColorPanelTest();
    ~ColorPanelTest() override;
};

/// The enhancement keywords and their ticket keys, in order.
inline constexpr const char *kEffectKeywords[] = {"VKBrightness", "VKContrast", "VKRed", "VKGreen",
                                                  "VKBlue"};
inline constexpr const char *kEffectTicketKeys[] = {
    "com.velkaro.print.PrintSettings.T2T_Brightness",
    "com.velkaro.print.PrintSettings.T2T_Contrast", "com.velkaro.print.PrintSettings.T2T_Red",
    "com.velkaro.print.PrintSettings.T2T_Green", "com.velkaro.print.PrintSettings.T2T_Blue"};
