#pragma once

#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// A real driverless printer (ippeveprinter) on a free port of the loopback, for as long as the
/// object lives: two trays, two media, three qualities, colour and grey, two sides, a stapler. It
/// notes what a job asks for. The message bus that it wants is a private one.
class DriverlessPrinter
{
public:
    DriverlessPrinter();
    ~DriverlessPrinter();
    DriverlessPrinter(const DriverlessPrinter &) = delete;
    DriverlessPrinter &operator=(const DriverlessPrinter &) = delete;

    /// Why there is no printer; null when it runs.
    QString fault() const { return m_fault; }

    /// Its address as lpadmin takes it.
    QString uri() const;

    /// What the last job asked for, by the names that print commands get ("IPP_SIDES"); empty
    /// before a job has come.
    QMap<QString, QString> lastJob() const;

private:
    bool startBus();
    bool startPrinter();
    void start(QProcess &process, const QString &program, const QStringList &arguments);

    QTemporaryDir m_folder;
    QProcess m_bus;
    QProcess m_printer;
    QString m_fault;
    int m_port = 0;
};
