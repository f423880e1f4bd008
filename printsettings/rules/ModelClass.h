#pragma once

#include <QtCore/QString>

/// Whether the printer belongs to the newer model class.
///
/// `modelNumber` is the PPD's "cupsModelNumber": 11 and more say yes by themselves. Otherwise the
/// model name ("Velkaro MX-J710DW") decides by what stands behind its one hyphen; a name without
/// exactly one hyphen, or with too few characters behind it, says no.
bool isNewerModelClass(int modelNumber, const QString &modelName);
