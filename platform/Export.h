#pragma once

#include <QtCore/qglobal.h>

/// Marks what the platform library offers to the dialog and to plug-ins.
#ifdef VELKARO_PLATFORM_LIBRARY
#define VELKARO_PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define VELKARO_PLATFORM_EXPORT Q_DECL_IMPORT
#endif
