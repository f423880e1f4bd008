#pragma once

#include <QtCore/QByteArray>

/// What a well-behaved server with the queue "photo", a full A3 printer, says to the IPP request:
/// one message. It takes any job, as job 7, and tells of it what `createdJob`, the last request to
/// create one, has asked for.
QByteArray goodAnswer(const QByteArray &request, const QByteArray &createdJob);

/// The queue's PPD.
QByteArray goodPPD();

inline constexpr int kGoodJob = 7;
