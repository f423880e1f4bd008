#pragma once

// Included before every source of the panels' rules (velkaro_add_rules): rules are decided from
// plain values, and a source that reaches for a control, a PPD or a panel does not compile.

#include <QtCore/qglobal.h>

#pragma GCC poison Q_GUI_EXPORT Q_WIDGETS_EXPORT
#pragma GCC poison ppd_file_t ppd_option_t cups_option_t
#pragma GCC poison VELKARO_PLATFORM_EXPORT VKPrintQualityPDE
