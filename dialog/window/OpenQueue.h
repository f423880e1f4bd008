#pragma once

#include <QtCore/QString>

/// Shows the queue with its jobs as the desktop can: the page of its server, in the user's browser.
/// Nothing is opened but that address, which is made of the names of server and queue.
void openQueue(const QString &server, const QString &queue);
