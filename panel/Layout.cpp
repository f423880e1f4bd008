#include "panel/VKPrintQualityPDE.h"

#include "panel/ControlValue.h"
#include "panel/ExtraAccessoryView.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/pde/PDEExtension.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PanelPoint.h"

#include <QtWidgets/QAbstractButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kOptionButton = "optionButton"_L1;
constexpr auto kShowHelpFile = "showHelpFile:"_L1;

} // namespace

QWidget *VKPrintQualityPDE::panelView()
{
    if (m_panelView || m_view || !pluginBundle)
        return m_panelView;
    const QString path = pluginBundle->pathForResource(m_thePDEName, u"ui"_s);
    if (path.isNull())
        return nullptr;
    ViewConnections connections;
    connectView(connections);
    m_view = loadView(path, connections);
    effectContent = m_view ? m_view->content() : nullptr;
    return m_panelView;
}

void VKPrintQualityPDE::connectView(ViewConnections &connections)
{
    connections.widgetClass<ExtraAccessoryView>(u"ExtraAccessoryView"_s);
    connections.outlet(u"panelView"_s, m_panelView);
    connections.outlet(kOptionButton, optionButton);
    m_keywordControls.connect(connections);
    connections.action(u"requestNewOutputBin:"_s,
                       [this](QWidget *sender) { requestNewOutputBin(sender); });
    connections.action(u"toggleShowOption:"_s,
                       [this](QWidget *sender) { toggleShowOption(sender); });
    connections.action(kShowHelpFile, [this](QWidget *sender) { showHelpFile(sender); });
}

void *VKPrintQualityPDE::extension(QLatin1String identifier)
{
    return extensionAmong<PDEPanelControls, PDEPanelInspection>(this, identifier);
}

QHash<QString, QWidget *> VKPrintQualityPDE::outlets() const
{
    return m_view ? m_view->outlets() : QHash<QString, QWidget *>();
}

// Whoever asks may spell the choice as a PPD does, in any letter case.
bool VKPrintQualityPDE::isTicked(const QString &, const QString &choice) const
{
    return isSameName(choice, u"ON"_s) || isSameName(choice, u"True"_s);
}

QString VKPrintQualityPDE::disclosureName() const
{
    return kOptionButton;
}

QAbstractButton *VKPrintQualityPDE::helpButton() const
{
    return buttonSending(kShowHelpFile);
}

QAbstractButton *VKPrintQualityPDE::buttonSending(QLatin1String action) const
{
    const auto buttons =
        m_panelView ? m_panelView->findChildren<QAbstractButton *>() : QList<QAbstractButton *>();
    const auto found = std::ranges::find(buttons, action, actionOf);
    return found == buttons.end() ? nullptr : *found;
}

void VKPrintQualityPDE::willShow()
{
    setFlag(PanelOnScreen, true);
    checkColorSync();
    checkFax();
    initializePopup();
}

bool VKPrintQualityPDE::shouldHide()
{
    setFlag(PanelOnScreen, false);
    return true;
}

void VKPrintQualityPDE::changeImage(const QString &imageName, ImageView *view)
{
    if (!view || (!view->image().isNull() && view->imageName() == imageName))
        return;
    QString path = pluginBundle ? pluginBundle->pathForResource(imageName, u"tiff"_s) : QString();
    if (path.isNull() && pluginBundle)
        path = pluginBundle->pathForResource(imageName, u"pdf"_s);
    // A file that the toolkit cannot read counts as missing: without a plug-in it reads no PDF.
    const QImage image = path.isNull() ? QImage() : QImage(path);
    if (image.isNull()) {
        if (!view->image().isNull())
            view->setImageName(u"None"_s);
        view->setVisible(false);
        return;
    }
    view->setImage(image);
    view->setImageName(imageName);
    view->setVisible(true);
}

void VKPrintQualityPDE::setViewFrameSize(const QSizeF &size)
{
    if (!pdePluginCallbackObject->respondsTo(HostOperation::PanelViewDidResize))
        return;
    if (m_panelView)
        m_panelView->setFixedSize(toPixels(size.width()), toPixels(size.height()));
    const std::optional<double> windowHeight = keyWindowHeight();
    if (!hasFlag(PanelOnScreen) || !windowHeight)
        return;
    if (*windowHeight > size.height() + kWindowMargin) {
        pdePluginCallbackObject->panelViewDidResize();
        return;
    }
    NotificationCenter::defaultCenter().addObserver(
        this, [this](const Notification &notification) { dialogDidExpand(notification); },
        QLatin1String(kViewDidUpdateTrackingAreasNotification), m_panelView);
}

void VKPrintQualityPDE::toggleShowOption(QWidget *sender)
{
    if (advancedHeight() == 0)
        return;
    const auto *button = qobject_cast<QAbstractButton *>(sender);
    const bool unfolded = button && button->isChecked();
    QSizeF size = m_panelView ? sizeInPoints(*m_panelView) : QSizeF(0, 0);
    size.rheight() += unfolded ? advancedHeight() : -advancedHeight();
    setViewFrameSize(size);
}

void VKPrintQualityPDE::dialogDidExpand(const Notification &)
{
    NotificationCenter::defaultCenter().removeObserver(
        this, QLatin1String(kViewDidUpdateTrackingAreasNotification), m_panelView);
    pdePluginCallbackObject->panelViewDidResize();
}

void VKPrintQualityPDE::adjustUIPosition(double offset, const QList<QWidget *> &parts)
{
    for (QWidget *part : parts) {
        // Up on the screen is a smaller vertical coordinate.
        if (part)
            part->move(part->x(), part->y() - toPixels(offset));
    }
}
