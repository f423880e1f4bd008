#include "dialog/printing/LostTogether.h"

#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/work/ProcessCopy.h"
#include "platform/foundation/UserDefaults.h"

#include <chrono>
#include <optional>

namespace {

constexpr std::chrono::seconds kLongestTry{10}; // of CPU time

void tellLost(PrintJob &job, const QList<RequestedChoice> &settings,
              const QList<RequestedChoice> &wanted, const ProcessCopy::Tell &tell)
{
    UserDefaults::standardUserDefaults().setFolder(QString());
    ScriptedAnswers answers(true);
    static_cast<void>(makeSettings(job, settings + wanted,
                                   [&](const RequestedChoice &) { answers.answerSheets(); }));
    for (qsizetype index = 0; index < settings.size(); ++index)
        if (!lostSettings(job, {settings[index]}).isEmpty())
            tell(QByteArray::number(index));
}

} // namespace

QList<RequestedChoice> lostTogether(PrintJob &job, const QList<RequestedChoice> &settings,
                                    const QList<RequestedChoice> &wanted)
{
    ProcessCopy copy(kLongestTry,
                     [&](const ProcessCopy::Tell &tell) { tellLost(job, settings, wanted, tell); });
    QList<RequestedChoice> lost;
    while (const std::optional<QByteArray> line = copy.nextLine())
        lost += settings[line->toLongLong()];
    return lost;
}
