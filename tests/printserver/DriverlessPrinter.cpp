#include "tests/printserver/DriverlessPrinter.h"

#include "tests/printserver/PrintServer.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>

#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeviceTimeout = 20000; // ms
constexpr int kDeviceLook = 20;       // ms between two looks at a state

// Numbers of finishings: none, staple, staple at the top left.
constexpr char kAttributes[] = R"(ATTR boolean color-supported true
ATTR integer copies-default 1
ATTR rangeOfInteger copies-supported 1-99
ATTR enum finishings-default 3
ATTR enum finishings-supported 3,4,20
ATTR keyword media-default iso_a4_210x297mm
ATTR keyword media-supported iso_a4_210x297mm,iso_a5_148x210mm
ATTR keyword media-ready iso_a4_210x297mm
ATTR keyword media-source-supported main,alternate
ATTR keyword media-type-supported stationery,photographic-glossy
ATTR collection media-size-supported {
  MEMBER integer x-dimension 21000
  MEMBER integer y-dimension 29700
},{
  MEMBER integer x-dimension 14800
  MEMBER integer y-dimension 21000
}
ATTR integer media-bottom-margin-supported 500
ATTR integer media-left-margin-supported 500
ATTR integer media-right-margin-supported 500
ATTR integer media-top-margin-supported 500
ATTR collection media-col-default {
  MEMBER collection media-size {
    MEMBER integer x-dimension 21000
    MEMBER integer y-dimension 29700
  }
  MEMBER integer media-bottom-margin 500
  MEMBER integer media-left-margin 500
  MEMBER integer media-right-margin 500
  MEMBER integer media-top-margin 500
  MEMBER keyword media-source main
  MEMBER keyword media-type stationery
}
ATTR keyword media-col-supported media-size,media-source,media-type,media-bottom-margin,media-left-margin,media-right-margin,media-top-margin
ATTR keyword output-bin-default face-down
ATTR keyword output-bin-supported face-down,face-up
ATTR keyword print-color-mode-default color
ATTR keyword print-color-mode-supported color,monochrome
ATTR enum print-quality-default 4
ATTR enum print-quality-supported 3,4,5
ATTR resolution printer-resolution-default 300dpi
ATTR resolution printer-resolution-supported 300dpi
ATTR resolution pwg-raster-document-resolution-supported 300dpi
ATTR keyword pwg-raster-document-type-supported black_1,sgray_8,srgb_8
ATTR keyword sides-default one-sided
ATTR keyword sides-supported one-sided,two-sided-long-edge,two-sided-short-edge
ATTR text printer-make-and-model "Example Driverless"
ATTR mimeMediaType document-format-default application/pdf
ATTR mimeMediaType document-format-supported application/pdf,image/pwg-raster,application/octet-stream
)";

constexpr char kBus[] = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path=%1/bus</listen>
  <policy context="default"><allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>
)";

QString deviceProgram(const QString &name)
{
    return QStandardPaths::findExecutable(name, {u"/usr/sbin"_s, u"/usr/bin"_s});
}

bool writeDeviceFile(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

} // namespace

DriverlessPrinter::DriverlessPrinter() : m_port(freePort())
{
    if (deviceProgram(u"ippeveprinter"_s).isEmpty() || deviceProgram(u"dbus-daemon"_s).isEmpty())
        m_fault = u"ippeveprinter or dbus-daemon is not installed"_s;
    else if (!startBus())
        m_fault = u"dbus-daemon does not start: "_s + QString::fromUtf8(m_bus.readAll());
    else if (!startPrinter())
        m_fault = u"ippeveprinter does not start: "_s + QString::fromUtf8(m_printer.readAll());
}

DriverlessPrinter::~DriverlessPrinter()
{
    for (QProcess *process : {&m_printer, &m_bus}) {
        if (process->state() == QProcess::NotRunning)
            continue;
        process->kill(); // by its process id
        process->waitForFinished(kDeviceTimeout);
    }
}

void DriverlessPrinter::start(QProcess &process, const QString &program,
                              const QStringList &arguments)
{
    process.setProcessChannelMode(QProcess::MergedChannels);
    // Also when this process ends without destructors.
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process.start(deviceProgram(program), arguments);
}

bool DriverlessPrinter::startBus()
{
    const QString configuration = m_folder.filePath(u"bus.conf"_s);
    if (!writeDeviceFile(configuration, QLatin1String(kBus).arg(m_folder.path())))
        return false;
    start(m_bus, u"dbus-daemon"_s, {u"--config-file="_s + configuration, u"--nofork"_s});
    const QDeadlineTimer deadline(kDeviceTimeout);
    while (m_bus.waitForStarted(kDeviceTimeout) && !deadline.hasExpired()) {
        if (QFile::exists(m_folder.filePath(u"bus"_s)))
            return true;
        if (m_bus.waitForFinished(kDeviceLook))
            return false;
    }
    return false;
}

bool DriverlessPrinter::startPrinter()
{
    const QString command = m_folder.filePath(u"note"_s);
    const bool isWritten =
        writeDeviceFile(m_folder.filePath(u"attributes"_s), QLatin1String(kAttributes)) &&
        writeDeviceFile(command, u"#!/bin/sh\nenv | grep ^IPP_ > %1/noting\n"
                                 "mv %1/noting %1/job\n"_s.arg(m_folder.path()));
    QFile::setPermissions(command, QFile::Permissions(0x7755));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path=%1/bus"_s.arg(m_folder.path()));
    m_printer.setProcessEnvironment(environment);
    start(m_printer, u"ippeveprinter"_s,
          {u"-p"_s, QString::number(m_port), u"-n"_s, u"localhost"_s, u"-r"_s, u"off"_s, u"-c"_s,
           command, u"-d"_s, m_folder.path(), u"-a"_s, m_folder.filePath(u"attributes"_s),
           u"Driverless"_s});
    const QDeadlineTimer deadline(kDeviceTimeout);
    while (isWritten && m_printer.waitForStarted(kDeviceTimeout) && !deadline.hasExpired()) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
        if (socket.waitForConnected(kDeviceTimeout))
            return true;
        if (m_printer.waitForFinished(kDeviceLook))
            return false;
    }
    return false;
}

QString DriverlessPrinter::uri() const
{
    return u"ipp://localhost:%1/ipp/print"_s.arg(m_port);
}

QMap<QString, QString> DriverlessPrinter::lastJob() const
{
    QMap<QString, QString> job;
    QFile file(m_folder.filePath(u"job"_s));
    if (!file.open(QIODevice::ReadOnly))
        return job;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
        job.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    return job;
}
