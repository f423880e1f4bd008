#include "dialog/window/OpenQueue.h"

#include "dialog/cups/QueuePage.h"

#include <QtGui/QDesktopServices>

void openQueue(const QString &server, const QString &queue)
{
    QDesktopServices::openUrl(queuePage(server, queue));
}
