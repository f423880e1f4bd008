#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

/// The page of the queue and its jobs that its server shows in a browser. `server` as in
/// ServerConnection.
QUrl queuePage(const QString &server, const QString &queue);
