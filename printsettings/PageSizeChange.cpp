#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/KeyWindow.h"
#include "printsettings/rules/PaperChange.h"
#include "printsettings/rules/PrintWarnings.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

using namespace Qt::StringLiterals;

namespace {

// A notification's object is an address that may be anybody's; it is a menu when a menu lives
// there.
const QComboBox *menuAt(const void *object)
{
    const auto widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (static_cast<const void *>(widget) == object)
            return qobject_cast<const QComboBox *>(widget);
    }
    return nullptr;
}

// Of the menu notifications only those count that come from a menu with paper sizes.
bool comesFromPaperMenu(const Notification &notification, const QString &paperTitle)
{
    const QComboBox *menu = menuAt(notification.object);
    return menu && notification.userInfo &&
           menu->findText(paperTitle, Qt::MatchFixedString | Qt::MatchCaseSensitive) >= 0;
}

} // namespace

void VKInkPrintSetting14PDE::checkPageSizeChange(const Notification &notification)
{
    try {
        const bool fromMenu = notification.name == QLatin1String(kMenuDidSendActionNotification);
        if (fromMenu && (!pluginBundle || !comesFromPaperMenu(notification, localized("A4"))))
            return;
        if (readPageSetup())
            followPageSize();
    } catch (...) {
        // The dialog posts this in the middle of its own work and must not be stopped by it. A
        // panel that cannot follow the paper stops listening rather than failing every time.
        NotificationCenter::defaultCenter().removeObserver(this);
    }
}

void VKInkPrintSetting14PDE::followPageSize()
{
    const QString mediaType = u"VKMediaType"_s;
    const bool warned = warnsOfBorderless(hasFlag(BorderlessPaper), pendingValue(u"VKResolution"_s),
                                          pendingValue(mediaType));
    if (warned && popupInited)
        runAlert(noticeAlert(AlertStyle::Critical, localized("Borderless Alert"),
                             localized("Borderless Alert2")));
    checkConstraints();
    if (!popupInited)
        return;
    checkUIConstraints();
    checkUIStateWithMediaType(appliesDefaultsAfterPaper(pendingValue(mediaType), warned));
    updateUI();
}
