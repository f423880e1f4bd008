#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// The text of a PPD that libcups may be given, or one sentence for people.
struct CheckedPPD
{
    QByteArray text; ///< unpacked
    QString error;   ///< null: the text can be used
};

/// Reads the PPD file and checks it. PPDs come from strangers: a file that is no regular one (a
/// folder, a pipe, a device: refused at once), one that is cut off, and one that has more of
/// anything than ppdLimits() allow is refused before libcups sees it. On any thread.
CheckedPPD readPPD(const QString &path);
