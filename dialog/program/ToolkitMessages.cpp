#include "dialog/program/ToolkitMessages.h"

#include <QtCore/QMutex>
#include <QtCore/QStringList>

#include <atomic>
#include <cstdio>

namespace {

constexpr qsizetype kMostRemarks = 20;

std::atomic<void (*)()> s_giveUp = nullptr;

void write(const QString &message)
{
    std::fprintf(stderr, "velkaro-print: %s\n", message.toLocal8Bit().constData());
}

void take(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const auto giveUp = s_giveUp.load();
    if (type == QtFatalMsg && giveUp)
        giveUp();
    static QBasicMutex mutex;
    // Never destroyed: the toolkit's own statics outlive ours, and may have a last remark.
    static QStringList *const remarks = new QStringList;
    const QMutexLocker locker(&mutex);
    if (type != QtCriticalMsg && type != QtFatalMsg) {
        *remarks = remarks->last(qMin(remarks->size(), kMostRemarks - 1)) << message;
        return;
    }
    if (type == QtFatalMsg)
        for (const QString &remark : std::as_const(*remarks))
            write(remark);
    write(message);
}

} // namespace

void tellToolkitFaultsOnly()
{
    qInstallMessageHandler(take);
}

void giveUpInsteadOfAborting(void (*giveUp)())
{
    s_giveUp = giveUp;
}
