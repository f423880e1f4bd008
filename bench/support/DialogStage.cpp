#include "bench/support/DialogStage.h"

#include "tests/built/BuiltFiles.h"

#include <cstdlib>

DialogStage::DialogStage()
{
    QString fault = m_display.fault() + m_server.fault();
    if (fault.isEmpty() &&
        !m_server.addQueue(queue(), samplePPD(QStringLiteral("velkaro-px-t900"))))
        fault = QStringLiteral("the queue cannot be added");
    if (!fault.isEmpty()) {
        qCritical("%s", qPrintable(fault));
        std::exit(1);
    }
    m_display.use();
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", m_home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
}

QString DialogStage::document()
{
    return QStringLiteral(BENCH_DOCUMENT);
}
