#include "dialog/advice/Adviser.h"

#include "dialog/host/HostSession.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>

#include <fcntl.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kPatience{30}; // by the clock

QString programPath()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(u"velkaro-print"_s);
}

QByteArray question(const PPDMark &wanted)
{
    return QJsonDocument(QJsonObject{{u"do"_s, u"why"_s},
                                     {u"keyword"_s, wanted.keyword},
                                     {u"choice"_s, wanted.choice}})
               .toJson(QJsonDocument::Compact) +
           '\n';
}

} // namespace

Adviser::Adviser(QObject *parent) : QObject(parent), m_events([this] { abandon(); })
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatience);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        endProcess();
        answer(std::nullopt);
    });
}

Adviser::~Adviser()
{
    endProcess();
    for (auto *process : findChildren<QProcess *>()) // one that was ended before, too
        process->waitForFinished();
}

void Adviser::follow(HostSession &session)
{
    abandon();
    endProcess();
    m_script.clear();
    m_session = &session;
    m_events.attach(session, u"/proc/self/fd/%1"_s.arg(session.ppdText()));
}

void Adviser::ask(const PPDMark &wanted, Then then)
{
    m_then = std::move(then);
    m_patience.start();
    if (!m_process && !start())
        return; // which has been answered
    sendScript();
    send(question(wanted));
    ++m_awaited;
}

/// A line of whatever kind, an empty one too, ends a search that is going on.
void Adviser::abandon()
{
    if (!std::exchange(m_then, nullptr))
        return;
    m_patience.stop();
    send("\n");
}

/// False when there was no room for another process.
bool Adviser::start()
{
    m_process = std::make_unique<QProcess>(this);
    const QProcess *process = m_process.get();
    m_process->setStandardErrorFile(QProcess::nullDevice());
    m_process->setChildProcessModifier(
        [ppd = m_session->ppdText()] { fcntl(ppd, F_SETFD, 0); }); // stays open in the program
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &Adviser::read);
    const auto end = [this] {
        endProcess();
        answer(std::nullopt);
    };
    connect(m_process.get(), &QProcess::finished, this, end);
    connect(m_process.get(), &QProcess::errorOccurred, this, end);
    QStringList arguments{u"--advise"_s};
    if (!m_session->options().bundlePath.isNull())
        arguments += m_session->options().bundlePath;
    m_process->start(programPath(), arguments);
    return m_process.get() == process;
}

void Adviser::sendScript()
{
    m_script += m_events.takeLines();
    for (; m_sent < m_script.size(); ++m_sent)
        send(m_script[m_sent] + '\n');
}

/// One that has ended tells so by itself.
void Adviser::send(const QByteArray &lines)
{
    if (m_process && m_process->isOpen())
        m_process->write(lines);
}

void Adviser::read()
{
    while (m_process && m_process->canReadLine()) {
        const QJsonDocument line = QJsonDocument::fromJson(m_process->readLine());
        if (--m_awaited == 0)
            answer(adviceOfMessage(line["result"_L1].toObject()));
    }
}

/// Whoever is told may ask again.
void Adviser::answer(const std::optional<Advice> &advice)
{
    m_patience.stop();
    if (const Then then = std::exchange(m_then, nullptr))
        then(advice);
}

void Adviser::endProcess()
{
    m_sent = 0;
    m_awaited = 0;
    QProcess *process = m_process.release();
    if (!process)
        return;
    process->disconnect(this);
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
    } else {
        connect(process, &QProcess::finished, process, &QObject::deleteLater);
        process->kill();
    }
}
