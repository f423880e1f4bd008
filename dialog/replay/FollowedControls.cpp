#include "dialog/host/controls/PanelParts.h"
#include "dialog/replay/SessionFollower.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/SizeWatch.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtWidgets/QRadioButton>

// The panel connected its actions first, so it has acted on a pick by the time it is noted here.
// What was picked is taken from the signal: the control may show another choice again (the host
// refused).

void SessionFollower::followControls(const HostPanel &panel)
{
    const auto parts = outletsInView(*panel.controls);
    for (auto part = parts.cbegin(); part != parts.cend(); ++part) {
        if (isReportedControl(part.value()))
            followControl(panel, part.key(), part.value());
    }
    followOtherParts(*panel.controls->loadedView());
    followPanelButtons(panel);
}

void SessionFollower::followControl(const HostPanel &of, const QString &name, QWidget *control)
{
    const QString panel = of.name;
    if (auto *popup = qobject_cast<PopUpButton *>(control)) {
        connect(popup, &PopUpButton::activated, this, [this, panel, name, popup](int index) {
            noteAction(ReplayPick{panel, name, popup->representedObject(index), std::nullopt});
        });
    } else if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
        followMatrix(panel, name, matrix);
    } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        const bool disclosure = name == of.controls->disclosureName();
        connect(button, &QAbstractButton::clicked, this,
                [this, panel, name, disclosure](bool checked) {
                    if (disclosure)
                        noteAction(ReplayFold{panel, checked});
                    else
                        noteAction(ReplayPick{panel, name, std::nullopt, checked});
                });
    }
}

void SessionFollower::followMatrix(const QString &panel, const QString &name, RadioMatrix *matrix)
{
    const auto cells = matrix->findChildren<QRadioButton *>();
    for (qsizetype row = 0; row < cells.size(); ++row) {
        connect(cells[row], &QRadioButton::clicked, this, [this, panel, name, matrix, row] {
            const QString choice = matrix->representedObject(static_cast<int>(row));
            noteAction(ReplayPick{panel, name, choice, std::nullopt});
        });
    }
}

void SessionFollower::followPanelButtons(const HostPanel &panel)
{
    if (const QAbstractButton *revert = panel.controls->revertButton())
        connect(revert, &QAbstractButton::clicked, this, [this] { noteAction(ReplayRevert{}); });
    if (const QAbstractButton *help = panel.controls->helpButton())
        connect(help, &QAbstractButton::clicked, this, [this, name = panel.name] {
            noteAction(ReplayPanelCall{PanelOperation::Help, name});
        });
}

void SessionFollower::followOtherParts(const QWidget &view)
{
    const auto slide = [this](const QString &keyword, double value) {
        noteAction(ReplaySlide{keyword, value});
    };
    for (auto *slider : view.findChildren<FractionSlider *>()) {
        connect(slider, &FractionSlider::movedByUser, this,
                [slide, slider](double value) { slide(boundKeyOf(slider), value); });
    }
    // A field and the slider beside it show one value.
    for (auto *field : view.findChildren<NumberField *>()) {
        connect(field, &NumberField::editedByUser, this,
                [slide, field] { slide(boundKeyOf(field), field->value()); });
    }
    for (auto *watch : view.findChildren<SizeWatch *>()) {
        connect(watch, &SizeWatch::fired, this, [this] {
            m_watchFired = true;
            deferSurroundings();
        });
    }
}
