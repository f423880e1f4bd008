#pragma once

#include <QtCore/QString>

class PrintJob;

/// The settings of the dialog's own that may be asked for by name: `copies`, `page-ranges`,
/// `orientation-requested`, and those of a layout.

bool isOwnSetting(const QString &name);

/// The one spelling of the value's meaning ("landscape" for "4"); null when it is no value for the
/// setting.
QString normalizedOwnValue(const QString &name, const QString &value);

/// Gives the job the setting, with a value that normalizedOwnValue() has given.
void takeOwnSetting(PrintJob &job, const QString &name, const QString &value);
