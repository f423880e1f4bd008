#pragma once

#include <QtCore/QString>

// The keys of a bundle's string tables that the dialog looks up. A table may lack each of them.

/// Why the choice of the PPD keyword is at times not there: one whole sentence or two, for where
/// the plug-in takes it away on purpose. The dialog says it before what it finds out by itself,
/// when somebody asks for the choice and cannot have it.
///
///   "Why Not ExMedium=Card": "Cards are printed one by one from the rear, where only small ..."
inline QString pdeWhyNotKey(const QString &keyword, const QString &choice)
{
    return QStringLiteral("Why Not %1=%2").arg(keyword, choice);
}
