#include "dialog/cups/JobSentence.h"

#include "dialog/job/JobLayout.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct SentenceRow
{
    JobPhase phase;
    const char *plain;  // %1: the job's number, %2: the queue
    const char *reason; // the same with %3, the reason in somebody's own words
};

constexpr std::array kSentences{
    SentenceRow{JobPhase::Waiting,
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is waiting for its turn."), nullptr},
    SentenceRow{JobPhase::Held, QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is held."),
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is held: %3.")},
    SentenceRow{
        JobPhase::HeldToRetry,
        QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is held: it will be tried again later."),
        QT_TRANSLATE_NOOP("JobSentence",
                          "Job %1 on %2 is held and will be tried again later: %3.")},
    SentenceRow{JobPhase::NeedsPassword,
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is held until its printer is given "
                                                 "a user name and a password."),
                nullptr},
    SentenceRow{JobPhase::Printing, QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is printing."),
                nullptr},
    SentenceRow{JobPhase::InTrouble,
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2: the printer needs somebody."),
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2: the printer needs somebody: %3.")},
    SentenceRow{
        JobPhase::Stopped,
        QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is waiting: the printer is stopped."),
        QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is waiting: the printer is stopped: %3.")},
    SentenceRow{JobPhase::Finished, QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is printed."),
                nullptr},
    SentenceRow{JobPhase::FinishedWithErrors,
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 has ended with errors."),
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 has ended with errors: %3.")},
    SentenceRow{JobPhase::Cancelled,
                QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 was cancelled."), nullptr},
    SentenceRow{JobPhase::Aborted,
                QT_TRANSLATE_NOOP("JobSentence", "The server has given job %1 on %2 up."),
                QT_TRANSLATE_NOOP("JobSentence", "The server has given job %1 on %2 up: %3.")},
    SentenceRow{JobPhase::Unknown,
                QT_TRANSLATE_NOOP("JobSentence",
                                  "The server has no record of job %1 on %2 any more: whether it "
                                  "was printed is not known."),
                nullptr},
};

/// Somebody's own sentence as a part of ours.
QString withoutStop(const QString &sentence)
{
    const bool stops = sentence.endsWith(u'.') || sentence.endsWith(u'。');
    return stops ? sentence.chopped(1) : sentence;
}

/// A time of the server is a time of day in UTC: the next one that comes.
QString localTime(QTime utc)
{
    QDateTime time(QDateTime::currentDateTimeUtc().date(), utc, Qt::UTC);
    if (time < QDateTime::currentDateTimeUtc())
        time = time.addDays(1);
    return QLocale().toString(time.toLocalTime().time(), QLocale::ShortFormat);
}

/// A sentence, and what stands for %3 and %4 in it.
struct Told
{
    const char *text = nullptr;
    QStringList values;
};

/// What the job waits for, where the server tells it.
std::optional<Told> heldUntil(const JobStatus &status)
{
    const QTime time = QTime::fromString(status.heldUntil, Qt::ISODate);
    if (time.isValid())
        return Told{QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is held until %3."),
                    {localTime(time)}};
    if (status.heldUntil == "indefinite"_L1)
        return Told{
            QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is held until somebody releases it."),
            {}};
    const LayoutSetting *hold = layoutSetting(u"job-hold-until"_s);
    if (status.heldUntil == "no-hold"_L1 ||
        std::ranges::find(hold->choices, status.heldUntil, &LayoutChoice::value) ==
            hold->choices.end())
        return std::nullopt;
    return Told{QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is held. %3: %4."),
                {layoutTitle(*hold), layoutText(*hold, status.heldUntil)}};
}

/// The sheet that is being printed. Filters and printer may both count, so there can be more than
/// the job has.
std::optional<Told> printingPage(int pages, const JobStatus &status)
{
    if (status.sheets <= 0)
        return std::nullopt;
    if (pages <= 0)
        return Told{QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is printing, %3 sheets so far."),
                    {QString::number(status.sheets)}};
    return Told{QT_TRANSLATE_NOOP("JobSentence", "Job %1 on %2 is printing page %3 of %4."),
                {QString::number(std::min(status.sheets + 1, pages)), QString::number(pages)}};
}

Told whatIsTold(int pages, const JobStatus &status)
{
    std::optional<Told> own;
    if (status.phase == JobPhase::Held && status.reason.isEmpty())
        own = heldUntil(status);
    if (status.phase == JobPhase::Printing)
        own = printingPage(pages, status);
    if (own)
        return *own;
    const auto row = std::ranges::find(kSentences, status.phase, &SentenceRow::phase);
    if (row->reason && !status.reason.isEmpty())
        return {row->reason, {withoutStop(status.reason)}};
    return {row->plain, {}};
}

} // namespace

QString sentenceOf(const JobName &job, const JobStatus &status)
{
    const Told told = whatIsTold(job.pages, status);
    const QString text = QCoreApplication::translate("JobSentence", told.text);
    const QString id = QString::number(job.id);
    switch (told.values.size()) {
    case 0:
        return text.arg(id, job.queue);
    case 1:
        return text.arg(id, job.queue, told.values[0]);
    default:
        return text.arg(id, job.queue, told.values[0], told.values[1]);
    }
}
