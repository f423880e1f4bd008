#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/pde/PPDText.h"
#include "platform/toolkit/SpokenName.h"
#include "printsettings/AdvancedOptionList.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStackedWidget>

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
    const QList<QWidget *> parts = {optionLabel, optionButton, advancedTabView, advancedTableView};
    initializeAdvOption(parts);
    const bool feed = managesKeyword(u"VKInputSlot"_s);
    if (!feed)
        adjustUIPosition(kFeedRowHeight, parts);
    if (QWidget *view = inspectedView())
        view->setFixedSize(view->width(), feed ? kCollapsedHeight : kCollapsedHeightWithoutFeed);
    restoreOptionState();
}

void VKInkPrintSetting14PDE::initializeAdvOption(const QList<QWidget *> &parts)
{
    if (advancedTableView)
        arrayController = std::make_unique<AdvancedOptionList>(*advancedTableView, advancedTabView);
    if (managesKeyword(u"MirrorPrint"_s) || managesKeyword(u"VKMirror"_s) ||
        managesKeyword(u"VKReverse"_s))
        addLocalizedRow("Layout");
    addGroupRow(u"VKJpeg"_s);
    addGroupRow(u"VKDuplexMode"_s);
    addLocalizedRow("OtherOption");
    if (!arrayController) {
        for (QWidget *part : parts) {
            if (part)
                part->setVisible(false);
        }
        return;
    }
    arrayController->selectRow(0);
    titleSection(localized("advancedItem"));
    if (parts.contains(advancedTableView))
        arrayController->fitColumn();
}

void VKInkPrintSetting14PDE::titleSection(const QString &title)
{
    if (optionLabel)
        optionLabel->setText(title);
    if (optionButton)
        setSpokenName(optionButton, title);
    if (advancedTableView)
        setSpokenName(advancedTableView, title);
}

void VKInkPrintSetting14PDE::addLocalizedRow(const char *key)
{
    const QString label = localized(key);
    if (!label.isEmpty())
        addAdvOption(label, QString::fromLatin1(key));
}

void VKInkPrintSetting14PDE::addGroupRow(const QString &keyword)
{
    const bool managed = managesKeyword(keyword);
    const ppd_option_t *option = findOption(ppd, keyword);
    if (managed && option)
        addAdvOption(ppdText(option->text), keyword);
    if (effectContent)
        effectContent->setValue(keyword, managed);
}

void VKInkPrintSetting14PDE::addAdvOption(const QString &label, const QString &id)
{
    if (arrayController)
        arrayController->add({label, id});
}

double VKInkPrintSetting14PDE::advancedHeight() const
{
    return kAdvancedHeight;
}

std::optional<PDEPanelInspection::Rows> VKInkPrintSetting14PDE::inspectedRows() const
{
    if (!arrayController)
        return Rows{};
    return Rows{arrayController->rows(), arrayController->selectedRow()};
}
