#pragma once

#include "dialog/printing/SettingOrigins.h"
#include "platform/ppd/CupsPPD.h"

/// Why a setting has its value, in a few plain words: "Your choice", "Because you chose Glossy".
QString originWords(ppd_file_t *ppd, const SettingOrigin &origin);
