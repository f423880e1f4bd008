#include "dialog/cups/Destinations.h"
#include "dialog/cups/IppAnswer.h"
#include "dialog/cups/JobFate.h"
#include "dialog/cups/JobReadBack.h"
#include "tests/fuzz/Harnesses.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// One of each kind of value that a job has.
QList<JobOption> sentOptions()
{
    return {{u"copies"_s, u"2"_s},         {u"page-ranges"_s, u"1-2,4-9"_s},
            {u"fit-to-page"_s, u"true"_s}, {u"print-quality"_s, u"5"_s},
            {u"PageSize"_s, u"A4"_s},      {u"com.maker.thing"_s, u"a b"_s}};
}

bool isOneLine(const QString &text)
{
    return std::ranges::none_of(text,
                                [](QChar one) { return one.category() == QChar::Other_Control; });
}

void checkQueues(ipp_t *answer)
{
    for (const Destination &queue : queuesOf(answer)) {
        const QString &name = queue.name.queue;
        require(!name.isEmpty() && !name.contains(u'/') && !name.contains(u' '),
                "every queue of the list can be named on the command line");
        require(isOneLine(name) && isOneLine(queue.description) && isOneLine(queue.location),
                "what is shown of a queue is one line of text");
    }
}

void checkJob(ipp_t *answer)
{
    const QList<JobOption> sent = sentOptions();
    const QStringList notes = differences(answer, 7, sent);
    require(notes.size() <= sent.size() + 1,
            "the account of a job has one sentence for each option and one for its state");
    for (const QString &note : notes)
        require(!note.isEmpty() && isOneLine(note), "what is said of a job is one line of text");
    fateOf(answer);
}

} // namespace

/// Whatever a server answers is read or is none, and is read as far as the program does.
void runIppAnswer(const QByteArray &answer)
{
    const IppAnswer read = readIppAnswer(answer);
    if (!read.ipp)
        return;
    checkQueues(read.ipp.get());
    checkJob(read.ipp.get());
}
