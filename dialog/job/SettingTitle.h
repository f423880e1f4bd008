#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QString>

/// What people know the setting of the name by, in every part of the dialog: what the dialog itself
/// calls it, else what the PPD (null: none) does, else its name. Plain text.
QString settingTitle(ppd_file_t *ppd, const QString &name);
