#pragma once

#include "dialog/printing/SettingOrigins.h"
#include "platform/ppd/CupsPPD.h"

class PrintJob;

/// Why a setting has its value, in a few plain words: "Your choice", "Because you chose Glossy".
QString originWords(ppd_file_t *ppd, const SettingOrigin &origin);

/// What the setting of the keyword is set to in the job, and why: "Print Quality: Normal – Your
/// choice".
QString originLine(const PrintJob &job, const SettingOrigins &origins, const QString &keyword);
