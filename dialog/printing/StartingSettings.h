#pragma once

#include <QtCore/QString>

/// What a printer's settings start from when it is opened.
struct StartingSettings
{
    enum class Kind {
        Saved,    ///< what lpoptions has for the queue, and for the instance
        LastUsed, ///< what the user printed with last, over the queue's
        OfPPD,    ///< a preset of the PPD (`name`), over the queue's
        Printer,  ///< the printer's defaults alone
    };

    Kind kind = Kind::Saved;
    QString name;

    bool operator==(const StartingSettings &) const = default;
};
