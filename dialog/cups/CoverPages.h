#pragma once

#include "dialog/work/CallGuard.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The cover pages that the queue offers (`job-sheets-supported`), by the server's names. Blocks:
/// call it in a BackgroundCall.
Result<QStringList> coverPages(const QString &server, const QString &queue, CallGuard &guard);
