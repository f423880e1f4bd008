#include "bench/support/DisplayServer.h"

#include <csignal>
#include <sys/prctl.h>

namespace {

constexpr int kTimeout = 20000; // ms

} // namespace

DisplayServer::DisplayServer()
{
    if (!start())
        m_fault = QStringLiteral("Xvfb does not start: ") +
                  QString::fromLocal8Bit(m_process.readAllStandardError());
}

DisplayServer::~DisplayServer()
{
    m_process.terminate(); // by its process id
    m_process.waitForFinished(kTimeout);
}

// The server picks a number that is free, and says it when clients may connect.
bool DisplayServer::start()
{
    // Also when this process ends without destructors.
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1280x1024x24"),
                     QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(kTimeout))
            return false;
    m_name = ':' + m_process.readLine().trimmed();
    return true;
}

void DisplayServer::use() const
{
    qputenv("DISPLAY", m_name);
    qputenv("QT_QPA_PLATFORM", "xcb");
}
