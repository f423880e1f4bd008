#pragma once

#include "platform/ppd/CupsPPD.h"
#include "platform/toolkit/PopUpButton.h"

#include <vector>

/// Whether a pop-up lists the choice: not the ones whose text begins with "Hagaki" (a choice text
/// shorter than that does not), and not "PlainDuplex", which stands behind plain paper.
bool isListedChoice(const QString &name, const QString &text);

/// The items of a pop-up for the option, in the order of the PPD.
std::vector<PopUpButton::Item> listedChoices(const ppd_option_t &option);
