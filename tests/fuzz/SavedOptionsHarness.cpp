#include "dialog/job/JobOptions.h"
#include "dialog/job/SavedOptions.h"
#include "dialog/job/SavedSettings.h"
#include "tests/fuzz/Harnesses.h"
#include "tests/support/PPDSource.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

using namespace Qt::StringLiterals;

namespace {

void writeLpoptions(const QByteArray &lines)
{
    const QDir home(qEnvironmentVariable("HOME"));
    home.mkpath(u".cups"_s);
    QFile file(home.filePath(u".cups/lpoptions"_s));
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size() && file.flush();
    require(isWritten, "the harness can write its own file");
}

} // namespace

/// A job made with saved options holds nothing that a filter may not be given.
void runSavedOptions(const QByteArray &lpoptions)
{
    writeLpoptions(lpoptions);
    const PPDHandle ppd = openSample(u"velkaro-px-t900"_s);
    const QueueName queue = usualQueue();
    JobValues values;
    values.ppd = ppd.get();
    values.saved = applySavedOptions(ppd.get(), ::savedOptions(queue)).others;
    for (const JobOption &option : jobOptions(values).options)
        require(isSendable(option), "every option of a job may be sent");
}
