#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// The PPD of a printer that has every control of both panels, as text.
///
/// `choices` is how many choices the keywords of the panels have together, 46 at least. Those
/// beyond 46 are spread over the pop-ups and stand before the ordinary choices, so that a look-up
/// that walks along a list is measured at its longest.
QByteArray benchPrinter(int choices);

inline constexpr int kFewestChoices = 46;

/// Writes the PPD into the folder, and gives its path. Ends the program when it cannot.
QString writeBenchPrinter(const QString &folder, int choices);
