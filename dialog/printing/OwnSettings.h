#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class PrintJob;

/// The settings of the dialog's own that may be asked for by name: `copies`, `page-ranges`,
/// `orientation-requested`, `print-scaling` and, as lp has them, `fit-to-page`, `landscape` and
/// `collate`, and those of a layout.

bool isOwnSetting(const QString &name);

/// The one name of the setting: two words for the same are not two settings.
QString ownSettingName(const QString &name);

/// The one spelling of the value's meaning ("landscape" for "4"); null when it is no value for the
/// setting.
QString normalizedOwnValue(const QString &name, const QString &value);

/// The values that the setting can have, as they are typed.
QStringList ownValues(const QString &name);

/// Gives the job the setting, with a value that normalizedOwnValue() has given.
void takeOwnSetting(PrintJob &job, const QString &name, const QString &value);
