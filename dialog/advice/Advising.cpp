#include "dialog/advice/Advising.h"

#include "dialog/advice/RemedySearch.h"
#include "dialog/advice/RemedyWords.h"
#include "dialog/advice/SettingScratch.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/work/ProcessCopy.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kLongestSearch{600}; // of CPU time, without its trials
constexpr int kMostTrials = 20000;

/// Nothing that the copy's alerts are told to remember is for anybody else.
void keepDefaultsInMemory(const HostSession &session)
{
    const QVariantMap memory = session.alertMemory();
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    defaults.setFolder(QString());
    if (session.bundle())
        defaults.setPersistentDomain(memory, session.bundle()->bundleIdentifier());
}

/// In a copy of the process, which ends without taking anything down: the session may have two
/// owners there.
Advice adviceInCopy(HostSession &session, const PPDMark &wanted)
{
    keepDefaultsInMemory(session);
    PrintJob &job = *new PrintJob;
    job.setPrinter({}, {std::unique_ptr<HostSession>(&session), {}});
    SettingScratch scratch(job, wanted, kMostTrials);
    const FoundRemedies found = findRemedies(scratch);
    Advice advice{wanted.keyword, wanted.choice, found.outcome, found.remedies, {}};
    advice.sentence = adviceSentence(session.ppd(), advice);
    return advice;
}

} // namespace

Result<PPDMark> choiceOfPPD(const HostSession &session, const QString &keyword,
                            const QString &choice)
{
    const bool isPaper = isSameName(keyword, u"PageRegion"_s);
    const PPDMark spelled = session.spelled(isPaper ? u"PageSize"_s : keyword, choice);
    ppd_option_t *option = findOption(session.ppd(), spelled.keyword);
    if (!option)
        return Fault{FaultKind::Request,
                     QCoreApplication::translate("SettingRequests", "The printer has no setting "
                                                                    "%1.")
                         .arg(displayText(keyword))};
    if (!findChoice(option, choice))
        return noSuchValue({spelled.keyword, choice});
    return spelled;
}

std::optional<Advice> adviceOn(HostSession &session, const PPDMark &wanted,
                               const std::function<bool()> &isGivenUp)
{
    ProcessCopy copy(kLongestSearch, [&](const ProcessCopy::Tell &tell) {
        tell(QJsonDocument(adviceMessage(adviceInCopy(session, wanted)))
                 .toJson(QJsonDocument::Compact));
    });
    const std::optional<QByteArray> line = copy.nextLine(isGivenUp);
    return line ? adviceOfMessage(QJsonDocument::fromJson(*line).object()) : std::nullopt;
}
