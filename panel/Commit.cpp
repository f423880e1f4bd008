#include "panel/VKPrintQualityPDE.h"

#include "panel/ControlValue.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtWidgets/QWidget>

using namespace Qt::StringLiterals;

namespace {

// Disabled by the panel, not by the dialog around it: that must not cost a setting.
bool isSwitchedOff(const QWidget &control)
{
    return !control.isEnabledTo(control.parentWidget());
}

} // namespace

bool VKPrintQualityPDE::setAndMarkValue(const QString &value, const QString &keyword)
{
    if (keyword.isNull())
        return false;
    const QString pending = pendingValue(keyword);
    if (!pending.isNull() && pending == value)
        return false;
    if (!pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, value))
        return false;
    recordPendingValue(keyword, value);
    return true;
}

void VKPrintQualityPDE::requestNewOutputBin(QWidget *control)
{
    const QString keyword = determineKey(control);
    const QString value = shownChoice(control, keyword);
    if (!value.isNull()) {
        if (pdePluginCallbackObject->willChangePPDOptionKeyValue(keyword, value)) {
            recordPendingValue(keyword, value);
            updateUIforKey(keyword);
        } else {
            revertUI(control, keyword);
        }
    }
    saveAllValues();
}

void VKPrintQualityPDE::revertUI(QWidget *control, const QString &keyword)
{
    QString value = pendingValue(keyword);
    const bool hidden = value == "PlainDuplex"_L1 && keyword == "VKMediaType"_L1;
    // The pop-up never lists plain paper's two-sided form.
    if (hidden && qobject_cast<PopUpButton *>(control))
        value = u"Plain"_s;
    showChoice(control, value);
}

void VKPrintQualityPDE::saveAllValues()
{
    if (!popupInited)
        return;
    getUIValues();
    saveOptionState();
}

void VKPrintQualityPDE::getUIValues()
{
    checkUIConstraints();
    for (const QString &keyword : managedKeywords()) {
        if (QWidget *control = determineUI(keyword))
            commitControl(*control, keyword);
    }
}

void VKPrintQualityPDE::commitControl(QWidget &control, const QString &keyword)
{
    QString value = shownChoice(&control, keyword);
    if (value.isNull())
        return;
    const bool medium = keyword == "VKMediaType"_L1 && qobject_cast<PopUpButton *>(&control);
    if (medium && hasFlag(DuplexOn))
        value = u"PlainDuplex"_s;
    setAndMarkValue(value, keyword);
    // A box that is disabled counts as off, whatever it shows; the slow-drying box and a fax job
    // are the exceptions.
    if (isCheckBox(&control) && isSwitchedOff(control) && keyword != "VKSlowDrying"_L1 &&
        !hasFlag(FaxOutput))
        setAndMarkValue(checkBoxValue(keyword, false), keyword);
}

QString VKPrintQualityPDE::determineKey(QWidget *control) const
{
    return m_keywordControls.keyword(control);
}

QWidget *VKPrintQualityPDE::determineUI(const QString &keyword) const
{
    return m_keywordControls.control(keyword);
}

QWidget *VKPrintQualityPDE::determineLabel(const QString &keyword) const
{
    return m_keywordControls.label(keyword);
}
