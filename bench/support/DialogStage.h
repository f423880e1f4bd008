#pragma once

#include "bench/support/DisplayServer.h"
#include "tests/printserver/PrintServer.h"

#include <QtCore/QTemporaryDir>

/// What a dialog needs to be measured as people have it: a screen, a print server with the queue
/// "photo", a full A3 printer, a document to print, and a home folder without anybody's settings.
///
/// Made after a QCoreApplication or before a QApplication. It changes the environment, and ends the
/// program when something of it cannot be had.
class DialogStage
{
public:
    DialogStage();

    /// "127.0.0.1:PORT"
    QString server() const { return m_server.address(); }
    static QString queue() { return QStringLiteral("photo"); }
    static QString document();

private:
    QTemporaryDir m_home;
    DisplayServer m_display;
    PrintServer m_server;
};
