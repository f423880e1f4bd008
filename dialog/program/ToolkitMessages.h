#pragma once

/// From now on the toolkit writes on standard error what is wrong, and not what it remarks about
/// the machine (a missing runtime folder, say): people and scripts would take that for a fault of
/// their job. A fault that ends the program comes with the remarks before it, which often say why.
/// For all threads; before the QApplication, which remarks most.
void tellToolkitFaultsOnly();

/// From now on a fault that ends the program is not told: `giveUp` is called, which must not
/// return. With null faults are told again, and the program aborts.
void giveUpInsteadOfAborting(void (*giveUp)());
