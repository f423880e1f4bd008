#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/ppd/PPDText.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PanelPoint.h"
#include "printsettings/rules/AdvancedGroups.h"

#include <QtWidgets/QAbstractButton>

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr int kCollapsedHeight = 160;
constexpr int kCollapsedHeightWithoutFeed = 130;
constexpr double kFeedRowHeight = 30;
constexpr double kAdvancedHeight = 140;

} // namespace

void VKInkPrintSetting14PDE::initializePopup()
{
    if (popupInited)
        return;
    VKPrintQualityPDE::initializePopup();
    const QList<QWidget *> parts = m_advanced.parts(optionButton);
    initializeAdvOption(parts);
    const bool feed = managesKeyword(u"VKInputSlot"_s);
    if (!feed)
        adjustUIPosition(kFeedRowHeight, parts);
    if (QWidget *view = loadedView())
        view->setFixedSize(view->width(),
                           toPixels(feed ? kCollapsedHeight : kCollapsedHeightWithoutFeed));
    restoreOptionState();
}

void VKInkPrintSetting14PDE::initializeAdvOption(const QList<QWidget *> &parts)
{
    const bool hasList = m_advanced.start();
    for (const AdvancedGroup &group : advancedGroups(managedKeywords()))
        addGroup(group);
    if (!hasList) {
        for (QWidget *part : parts) {
            if (part)
                part->setVisible(false);
        }
        return;
    }
    const QString title = localized("advancedItem");
    m_advanced.finish(title);
    if (optionButton)
        nameDisclosure(optionButton, localized("Section"), title);
    m_advanced.fitColumn(parts);
}

void VKInkPrintSetting14PDE::addGroup(const AdvancedGroup &group)
{
    const std::optional<QString> label = groupLabel(group);
    if (group.offered && label)
        addAdvOption(*label, group.id);
    if (group.titledByPPD && effectContent)
        effectContent->setValue(group.id, group.offered);
}

std::optional<QString> VKInkPrintSetting14PDE::groupLabel(const AdvancedGroup &group) const
{
    if (group.titledByPPD) {
        const ppd_option_t *option = findOption(ppd, group.id);
        return option ? std::optional(ppdText(option->text)) : std::nullopt;
    }
    const QString text = localized(group.id.toLatin1().constData());
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

void VKInkPrintSetting14PDE::addAdvOption(const QString &label, const QString &id)
{
    m_advanced.add({label, id});
}

double VKInkPrintSetting14PDE::advancedHeight() const
{
    return kAdvancedHeight;
}

std::optional<PDEPanelInspection::Rows> VKInkPrintSetting14PDE::inspectedRows() const
{
    return m_advanced.rows();
}
