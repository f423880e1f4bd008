#pragma once

#include <QtCore/QString>

/// How an option of a saved job is taken, by its name. A saved job may come from anybody.
enum class OptionOrigin {
    Ours,    ///< this program writes it: it is sent
    Foreign, ///< this program does not write it: it is sent when the user says so
    Never,   ///< it would send the job past the printer's settings, or elsewhere
};

/// Ours are the dialog's own settings, what people save with lpoptions (a hold among them), vendor
/// keys in reverse-domain form, and keywords of PPDs, which may be any name that is not reserved.
OptionOrigin originOf(const QString &option);

/// Whether the option is one of the dialog's own settings, or what people save with lpoptions.
bool isStandardSetting(const QString &option);
