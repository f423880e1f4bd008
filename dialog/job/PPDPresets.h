#pragma once

#include "dialog/job/JobOption.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QString>

/// Settings that the maker of a printer recommends together (the PPD's `APPrinterPreset`).
struct PPDPreset
{
    QString name;
    QString text;             ///< in the user's language, where the PPD has it
    QList<JobOption> options; ///< choices that the PPD has

    bool operator==(const PPDPreset &) const = default;
};

/// The presets of the PPD (null: none) in its order. One that names no choice of the PPD is not
/// there.
QList<PPDPreset> presetsOf(ppd_file_t *ppd);
