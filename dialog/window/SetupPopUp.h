#pragma once

#include "platform/ppd/CupsPPD.h"
#include "platform/toolkit/PopUpButton.h"

/// A pop-up of the page setup.
PopUpButton *newSetupPopUp(const QString &name, QWidget *parent);

/// Names it, and makes it as wide as the others, whatever its choices are.
void shapeSetupPopUp(PopUpButton *popup, const QString &name);

/// The choices of the PPD option, by their texts.
std::vector<PopUpButton::Item> itemsOf(const ppd_option_t *option);

/// Selects the choice, or nothing where nothing is marked: a PPD need not tell a default.
void showChoice(PopUpButton *popup, const QString &choice);
