#pragma once

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/VKInkPrintSetting14PDE.h"
#include "tests/support/PanelSession.h"
#include "tests/support/QStringPrinting.h"

#include <QtWidgets/QAbstractButton>

#include <gtest/gtest.h>

/// The panel with its state open to tests.
class TestedPanel : public VKInkPrintSetting14PDE
{
public:
    using VKPrintQualityPDE::hasFlag;
    using VKPrintQualityPDE::paperName;
    using VKPrintQualityPDE::pendingValue;
    using VKPrintQualityPDE::popupInited;
    using VKPrintQualityPDE::recordPendingValue;
    using VKPrintQualityPDE::setFlag;

    QWidget *outlet(const QString &name) const { return outlets().value(name); }
    PopUpButton *popup(const QString &name) const
    {
        return qobject_cast<PopUpButton *>(outlet(name));
    }
    QAbstractButton *box(const QString &name) const
    {
        return qobject_cast<QAbstractButton *>(outlet(name));
    }

    /// Medium and quality that are pending: "Plain/PlainNormal".
    QString pending() const
    {
        return pendingValue(QStringLiteral("VKMediaType")) + u'/' +
               pendingValue(QStringLiteral("VKResolution"));
    }
    QString pendingBiDir() const { return pendingValue(QStringLiteral("VKBiDir")); }
};

/// The items of a pop-up in order: "Plain* -Glossy Inkjet", with a star at the selected one and a
/// hyphen before disabled ones. Empty for no items.
inline QString itemsOf(const PopUpButton *popup)
{
    QStringList items;
    for (int index = 0; popup && index < popup->count(); ++index) {
        const QString sign = popup->isItemEnabled(index) ? QString() : QStringLiteral("-");
        const QString star = popup->currentIndex() == index ? QStringLiteral("*") : QString();
        items << sign + popup->representedObject(index) + star;
    }
    return items.join(u' ');
}

/// A check box: "on" or "off", with " disabled" where it is.
inline QString stateOf(const QAbstractButton *box)
{
    if (!box)
        return QStringLiteral("none");
    return (box->isChecked() ? QStringLiteral("on") : QStringLiteral("off")) +
           (box->isEnabled() ? QString() : QStringLiteral(" disabled"));
}

/// A panel in a session of its own. The full A3 model is used where a test does not say otherwise.
class PrintPanelTest : public testing::Test
{
protected:
    /// Starts with this PPD instead; before anything else.
    void usePrinter(PPDHandle ppd)
    {
        panel.reset();
        session.reset();
        session = std::make_unique<PanelSession>(std::move(ppd));
        panel = std::make_unique<TestedPanel>();
    }
    void useSample(const QString &name) { usePrinter(openSample(name)); }

    /// Creates the panel and lets it read its values, as a dialog does when it opens.
    void open()
    {
        ASSERT_TRUE(panel->initWithCallback(session->host()));
        panel->restoreValuesAndReturnError(nullptr);
        session->log().take();
    }

    /// Opens the panel and brings it on screen.
    void show()
    {
        open();
        ASSERT_TRUE(panel->panelView());
        panel->willShow();
        session->log().take();
    }

    /// How many notifications the panel is registered for.
    int registrations() const
    {
        return NotificationCenter::defaultCenter().registrationCount(panel.get());
    }

    QStringList log() { return session->log().take(); }
    QString pending(const QString &keyword) const { return panel->pendingValue(keyword); }
    PopUpButton *popup(const QString &name) const { return panel->popup(name); }
    QAbstractButton *box(const QString &name) const { return panel->box(name); }

    std::unique_ptr<PanelSession> session =
        std::make_unique<PanelSession>(openSample(QStringLiteral("velkaro-px-t900")));
    std::unique_ptr<TestedPanel> panel = std::make_unique<TestedPanel>();
};
