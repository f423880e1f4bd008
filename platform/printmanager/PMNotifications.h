#pragma once

#include <QtCore/QLatin1String>

// What a dialog posts on the default notification centre when the page setup has changed. The
// object is the dialog's callback object (as a PDEPluginCallback); there is no user information:
// panels read the page format, the ticket and the PPD.

/// Another paper, or another paper that the document is scaled to.
inline constexpr auto kPMPaperDidChangeNotification =
    QLatin1String("PMPrintDestinationPaperDidChangeNotification");

/// Two-sided printing has been switched on or off: the marked choice of `Duplex`.
inline constexpr auto kPMDuplexDidChangeNotification =
    QLatin1String("PMPrintDuplexChangedNotification");
