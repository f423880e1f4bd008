#include "panel/PopUpTag.h"
#include "panel/VKPrintQualityPDE.h"

#include "panel/ControlValue.h"
#include "panel/ListedChoices.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/RadioMatrix.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

// These boxes stay enabled; the constraints enable the others where they may be used.
bool isVertLineAlignKeyword(const QString &keyword)
{
    return keyword == "VKVertLineAlignA3B4Ledger"_L1 || keyword == "VKVertLineAlignA4Letter"_L1 ||
           keyword == "VKVertLineAlignOther"_L1 || keyword == "VKVertLineAlignDedicated"_L1;
}

void fitRows(RadioMatrix &matrix, int rows)
{
    // The surplus is taken from below the first row, not from the end.
    for (int excess = matrix.numberOfRows() - rows; excess > 0; --excess)
        matrix.removeRow(excess);
    while (matrix.numberOfRows() < rows)
        matrix.addRow();
}

} // namespace

void VKPrintQualityPDE::initializePopup()
{
    NotificationCenter::defaultCenter().addObserver(
        this,
        [this](const Notification &notification) { removeNotificationObserver(notification); },
        QLatin1String(kWindowWillCloseNotification), keyWindow());
    for (const QString &keyword : managedKeywords())
        buildControl(keyword);
    if (effectContent)
        effectContent->setValue(optionName(), false);
    setFlag(HelpRegistered, registerHelp());
    popupInited = true;
}

void VKPrintQualityPDE::buildControl(const QString &keyword)
{
    QWidget *control = determineUI(keyword);
    if (!control)
        return;
    control->setVisible(true);
    if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        buildMatrix(*matrix, keyword);
    else if (auto *popup = qobject_cast<PopUpButton *>(control))
        buildPopUp(*popup, keyword);
    else if (auto *box = qobject_cast<QAbstractButton *>(control))
        buildCheckBox(*box, keyword);
}

void VKPrintQualityPDE::buildMatrix(RadioMatrix &matrix, const QString &keyword)
{
    const ppd_option_t *option = findOption(ppd, keyword);
    if (!option)
        return;
    fitRows(matrix, option->num_choices);
    for (int row = 0; row < option->num_choices; ++row) {
        const ppd_choice_t &choice = option->choices[row];
        matrix.setCell(row, ppdText(choice.text), ppdName(choice.choice));
    }
    titleLabel(keyword, ppdText(option->text));
}

void VKPrintQualityPDE::buildPopUp(PopUpButton &popup, const QString &keyword)
{
    const ppd_option_t *option = findOption(ppd, keyword);
    if (!option) {
        popup.setItems({});
        return;
    }
    if (QWidget *label = determineLabel(keyword))
        label->setVisible(true);
    titleLabel(keyword, ppdText(option->text));
    const auto items = listedChoices(*option);
    if (popup.tag() == kTagTitlesInContent && effectContent) {
        for (const PopUpButton::Item &item : items)
            effectContent->setValue(item.representedObject, item.title);
    }
    if (popup.tag() == kTagPictures && pluginBundle) {
        popup.setPictures([bundle = pluginBundle](const QString &choice) {
            return bundle->pathForResource(choice, u"tiff"_s);
        });
    }
    popup.setItems(items);
}

void VKPrintQualityPDE::buildCheckBox(QAbstractButton &box, const QString &keyword)
{
    if (const ppd_option_t *option = findOption(ppd, keyword))
        setButtonTitle(&box, ppdText(option->text));
    box.setEnabled(isVertLineAlignKeyword(keyword));
}

void VKPrintQualityPDE::titleLabel(const QString &keyword, const QString &text)
{
    QWidget *label = determineLabel(keyword);
    if (auto *field = qobject_cast<QLabel *>(label))
        setLabelText(field, text + u": "_s);
    else if (auto *box = qobject_cast<QGroupBox *>(label))
        box->setTitle(withoutMnemonic(text));
    if (QWidget *control = determineUI(keyword))
        giveAccessibleName(control, text);
}

void VKPrintQualityPDE::updateUI()
{
    for (const QString &keyword : managedKeywords())
        updateUIforKey(keyword);
    checkUIConstraints();
}

void VKPrintQualityPDE::updateUIforKey(const QString &keyword)
{
    QWidget *control = determineUI(keyword);
    if (!control)
        return;
    const QString value = pendingValue(keyword);
    const bool shown = showChoice(control, value);
    auto *popup = qobject_cast<PopUpButton *>(control);
    if (!shown && popup && keyword == "VKMediaType"_L1)
        selectFallbackMedium(*popup, value);
}

void VKPrintQualityPDE::selectFallbackMedium(PopUpButton &popup, const QString &value)
{
    const QString fallback = value == "HagakiUra"_L1 ? u"Glossy"_s : u"Plain"_s;
    if (popup.selectObject(fallback) && value != "PlainDuplex"_L1)
        setAndMarkValue(fallback, u"VKMediaType"_s);
}

void VKPrintQualityPDE::checkUIConstraints()
{
    const bool enabled = !hasFlag(FaxOutput);
    if (effectContent)
        effectContent->setValue(u"VKOutput"_s, enabled);
    const ControlColor color = enabled ? controlTextColor() : disabledControlTextColor();
    for (const QString &keyword : managedKeywords()) {
        // Where the view binds the enabled state, the control has followed "VKOutput" and its other
        // keys already. Enabled here as well, it would flicker at every pick.
        QWidget *control = determineUI(keyword);
        if (control && !(m_view && m_view->bindsEnabled(control)))
            control->setEnabled(enabled);
        auto *label = qobject_cast<QLabel *>(determineLabel(keyword));
        if (label && !(m_view && m_view->bindsTextColor(label)))
            setTextColor(label, color);
    }
}
