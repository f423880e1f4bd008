#include "dialog/program/FollowCommand.h"

#include "dialog/printing/JobFollower.h"
#include "dialog/program/DesktopNotification.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/program/ToolkitMessages.h"
#include "dialog/program/Translations.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Urgency = DesktopNotification::Urgency;

/// The job's notification: there is one while the job is in trouble, and one at its end.
class Teller
{
public:
    Teller(DesktopNotification &notification, JobName job)
        : m_notification(notification), m_job(std::move(job))
    {}

    void take(const JobStatus &status)
    {
        const bool isGood = status.phase == JobPhase::Finished;
        if (isEnd(status.phase) || isStuck(status.phase))
            m_notification.show(QCoreApplication::translate("JobWindow", "Job %1 on %2")
                                    .arg(QString::number(m_job.id), m_job.queue),
                                sentenceOf(m_job, status),
                                isGood ? Urgency::Normal : Urgency::Critical);
        else
            m_notification.close();
        if (isEnd(status.phase))
            QCoreApplication::quit();
    }

private:
    DesktopNotification &m_notification;
    const JobName m_job;
};

/// Null where the argument is empty: the user's usual server.
QString serverIn(const QString &argument)
{
    return argument.isEmpty() ? QString() : argument;
}

} // namespace

int runFollowCommand(int &argc, char **argv)
{
    QCoreApplication application(argc, argv);
    tellToolkitFaultsOnly();
    installTranslations();
    const QStringList arguments = QCoreApplication::arguments().mid(2);
    const JobName job{arguments.value(1), arguments.value(2).toInt(), arguments.value(3).toInt()};
    DesktopNotification notification;
    if (job.id <= 0 || !notification.canBeShown())
        return exitCode(ExitStatus::Done);
    Teller teller(notification, job);
    JobFollower follower({serverIn(arguments.value(0)), job.queue, job.id},
                         {[&](const JobStatus &status) { teller.take(status); },
                          [](const QString &) {}, [](const QString &) {}});
    follower.start();
    QTimer::singleShot(std::chrono::seconds(arguments.value(4).toInt()), &application,
                       &QCoreApplication::quit);
    return QCoreApplication::exec();
}

void startFollowing(const QString &server, const JobName &job, std::chrono::seconds atMost)
{
    QProcess process;
    process.setProgram(QDir(QCoreApplication::applicationDirPath()).filePath(u"velkaro-print"_s));
    process.setArguments({QString::fromLatin1(kFollowOption), server, job.queue,
                          QString::number(job.id), QString::number(job.pages),
                          QString::number(atMost.count())});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}
