#include "dialog/host/controls/UserActions.h"

#include "dialog/host/controls/PanelParts.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/SizeWatch.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Why a person cannot use the control now; null when one can.
QString reasonNotToUse(const QWidget *control, const QString &name)
{
    if (!control)
        return u"there is no control \"%1\""_s.arg(name);
    if (isHiddenItself(control))
        return u"the control \"%1\" is hidden"_s.arg(name);
    if (!control->isEnabled())
        return u"the control \"%1\" is disabled"_s.arg(name);
    return {};
}

QString noSuchItem(const QString &control, const QString &choice)
{
    return u"the control \"%1\" has no enabled item \"%2\""_s.arg(control, choice);
}

QString wrongKind(const QString &control, QLatin1String field)
{
    return u"the control \"%1\" takes no \"%2\""_s.arg(control, field);
}

QAbstractButton *revertButton(const HostSession &session)
{
    for (const HostPanel &panel : session.panels()) {
        if (QAbstractButton *button = panel.controls ? panel.controls->revertButton() : nullptr)
            return button;
    }
    return nullptr;
}

// A box that stands as wanted sends its action all the same, as a pop-up does whose selected item
// is picked again.
void setByUser(QAbstractButton &button, bool checked)
{
    if (button.isChecked() != checked)
        button.click();
    else if (qobject_cast<QCheckBox *>(&button))
        Q_EMIT button.clicked(checked);
}

} // namespace

QString pickChoice(const PDEPanelControls &panel, const QString &control, const QString &choice)
{
    QWidget *found = controlNamed(panel, control);
    QString reason = reasonNotToUse(found, control);
    if (!reason.isNull())
        return reason;
    if (auto *popup = qobject_cast<PopUpButton *>(found)) {
        const int index = popup->indexOfRepresentedObject(choice);
        if (index < 0 || !popup->isItemEnabled(index))
            return noSuchItem(control, choice);
        popup->pick(index);
    } else if (auto *matrix = qobject_cast<RadioMatrix *>(found)) {
        const int row = matrix->rowOfRepresentedObject(choice);
        if (row < 0)
            return noSuchItem(control, choice);
        matrix->pick(row);
    } else {
        return wrongKind(control, "choice"_L1);
    }
    return {};
}

QString pickChecked(const PDEPanelControls &panel, const QString &control, bool checked)
{
    QWidget *found = controlNamed(panel, control);
    QString reason = reasonNotToUse(found, control);
    if (!reason.isNull())
        return reason;
    auto *button = qobject_cast<QAbstractButton *>(found);
    if (!button)
        return wrongKind(control, "checked"_L1);
    setByUser(*button, checked);
    return {};
}

QString foldSection(const PDEPanelControls &panel, bool open)
{
    const QString name = panel.disclosureName();
    auto *button = qobject_cast<QAbstractButton *>(controlNamed(panel, name));
    QString reason = reasonNotToUse(button, name);
    if (reason.isNull() && button->isChecked() != open)
        button->click();
    return reason;
}

QString moveSlider(const HostSession &session, const QString &keyword, double value)
{
    const std::optional<SliderRange> range = session.sliderRange();
    if (range && !(value >= range->least && value <= range->greatest))
        return u"the value %1 is not from %2 to %3"_s.arg(value)
            .arg(range->least)
            .arg(range->greatest);
    const auto sliders = partsOfViews<FractionSlider>(session);
    const auto bound = std::ranges::find(sliders, keyword, boundKeyOf);
    if (bound == sliders.end())
        return u"there is no slider of \"%1\""_s.arg(keyword);
    if (!(*bound)->isEnabled())
        return u"the slider of \"%1\" is disabled"_s.arg(keyword);
    (*bound)->moveByUser(value);
    return {};
}

QString pressRevert(const HostSession &session)
{
    QAbstractButton *revert = revertButton(session);
    if (!revert)
        return u"there is no revert button"_s;
    if (!revert->isEnabled())
        return u"the revert button is disabled"_s;
    revert->click();
    return {};
}

QString fireSizeWatch(const HostSession &session)
{
    const auto watches = partsOfViews<SizeWatch>(session);
    for (SizeWatch *watch : watches)
        watch->fire();
    return watches.isEmpty() ? u"no view with a size watch is loaded"_s : QString();
}
