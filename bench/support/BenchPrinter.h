#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// The PPD of a printer that has every control of both panels, as text.
///
/// `choices` is how many choices the keywords of the panels have together, 46 at least. What goes
/// beyond that is spread over the pop-ups, each one's before its ordinary choices: whoever looks a
/// choice up by walking the list walks all of it.
QByteArray benchPrinter(int choices);

inline constexpr int kFewestChoices = 46;

/// Writes the PPD into the folder, and gives its path. Ends the program when it cannot.
QString writeBenchPrinter(const QString &folder, int choices);
