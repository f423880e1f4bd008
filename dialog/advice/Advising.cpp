#include "dialog/advice/Advising.h"

#include "dialog/advice/RemedySearch.h"
#include "dialog/advice/RemedyWords.h"
#include "dialog/advice/SettingScratch.h"
#include "dialog/advice/SettingTrials.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/Conflicts.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/work/ProcessCopy.h"
#include "dialog/work/Sentences.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/pde/PDEStringKeys.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kLongestSearch{20}; // of CPU time, with all its trials
constexpr int kMostTrials = 20000;
constexpr int kConditionsOfATrial = 100;   // that are looked through in the time of one
constexpr QByteArrayView kWhole = "whole"; // ends the lines of a search

/// Every trial looks through all constraints of the PPD, which may be made to take all time.
int mostTrials(ppd_file_t *ppd)
{
    return kMostTrials / (1 + constraintsIn(ppd) / kConditionsOfATrial);
}

/// Nothing that the copy's alerts are told to remember is for anybody else.
void keepDefaultsInMemory(const HostSession &session)
{
    const QVariantMap memory = session.alertMemory();
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    defaults.setFolder(QString());
    if (session.bundle())
        defaults.setPersistentDomain(memory, session.bundle()->bundleIdentifier());
}

/// What the bundle says of the choice in a sentence of its own; null: nothing.
QString sentenceOfBundle(const HostSession &session, const PPDMark &wanted)
{
    if (!session.bundle())
        return {};
    const QString key = pdeWhyNotKey(wanted.keyword, wanted.choice);
    const QString text = session.bundle()->localizedString(key);
    return text == key ? QString() : displayText(text);
}

QString sentenceOn(const HostSession &session, const Advice &advice)
{
    QStringList sentences{adviceSentence(session.ppd(), advice)};
    const QString own = sentenceOfBundle(session, {advice.keyword, advice.choice});
    if (advice.outcome != Advice::Outcome::Available && !own.isEmpty())
        sentences.prepend(endedLikeASentence(own));
    return joinedSentences(sentences);
}

QByteArray lineOfAdvice(const HostSession &session, const PPDMark &wanted, Advice::Outcome outcome,
                        const QList<Remedy> &remedies)
{
    Advice advice{wanted.keyword, wanted.choice, outcome, remedies, {}};
    advice.sentence = sentenceOn(session, advice);
    return QJsonDocument(adviceMessage(advice)).toJson(QJsonDocument::Compact);
}

/// One of several wanted choices that are looked for together.
class Question
{
public:
    Question(SettingTrials &trials, qsizetype place, int most,
             std::function<void(const Remedy &)> tellFirst)
        : m_scratch(trials, place, most), m_search(m_scratch, std::move(tellFirst))
    {}

    RemedySearch &search() { return m_search; }

private:
    SettingScratch m_scratch;
    RemedySearch m_search;
};

/// Sets of one size for all choices, then the next: what is tried out for one of them is not for
/// those that have their answer.
void answerAll(HostSession &session, SettingTrials &trials, const QList<PPDMark> &wanted,
               const ProcessCopy::Tell &tell)
{
    std::vector<std::unique_ptr<Question>> questions;
    for (qsizetype place = 0; place < wanted.size(); ++place)
        questions.push_back(std::make_unique<Question>(
            trials, place, mostTrials(session.ppd()),
            [&session, &tell, one = wanted[place]](const Remedy &first) {
                tell(lineOfAdvice(session, one, Advice::Outcome::Possible, {first}));
            }));
    for (qsizetype left = wanted.size(); left > 0;) {
        for (std::size_t place = 0; place < questions.size(); ++place) {
            if (!questions[place])
                continue;
            RemedySearch &search = questions[place]->search();
            search.goOn();
            if (!search.isOver())
                continue;
            const FoundRemedies found = search.found();
            const auto index = static_cast<qsizetype>(place);
            tell(lineOfAdvice(session, wanted[index], found.outcome, found.remedies));
            trials.drop(index);
            questions[place].reset();
            --left;
        }
    }
}

/// In a copy of the process, which ends without taking anything down: the session may have two
/// owners there.
void adviseInCopy(HostSession &session, const QList<PPDMark> &wanted, const ProcessCopy::Tell &tell)
{
    keepDefaultsInMemory(session);
    PrintJob &job = *new PrintJob;
    job.setPrinter({}, {std::unique_ptr<HostSession>(&session), {}});
    SettingTrials trials(job, wanted, kLongestSearch * wanted.size());
    answerAll(session, trials, wanted, tell);
    tell(kWhole.toByteArray());
}

/// In the place of what was said of the same choice before.
void take(QList<Advice> &told, const Advice &advice)
{
    told.removeIf([&](const Advice &before) {
        return before.keyword == advice.keyword && before.choice == advice.choice;
    });
    told += advice;
}

} // namespace

Result<PPDMark> choiceOfPPD(const HostSession &session, const QString &keyword,
                            const QString &choice)
{
    const bool isPaper = isSameName(keyword, u"PageRegion"_s);
    const PPDMark spelled = session.spelled(isPaper ? u"PageSize"_s : keyword, choice);
    ppd_option_t *option = findOption(session.ppd(), spelled.keyword);
    if (!option)
        return noSuchSetting(keyword);
    if (!findChoice(option, choice))
        return noSuchValue({spelled.keyword, choice}, {});
    return spelled;
}

void applyRemedy(PrintJob &job, const Remedy &remedy, const PPDMark &wanted)
{
    for (const SettingChange &change : remedy.changes)
        makeSetting(job, {change.keyword, change.to});
    makeSetting(job, {wanted.keyword, wanted.choice});
}

std::optional<Advice> adviceOn(HostSession &session, const PPDMark &wanted,
                               const std::function<bool()> &isGivenUp,
                               const std::function<void(const Advice &)> &tellFirst)
{
    ProcessCopy copy(kLongestSearch,
                     [&](const ProcessCopy::Tell &tell) { adviseInCopy(session, {wanted}, tell); });
    std::optional<Advice> last;
    while (const std::optional<QByteArray> line = copy.nextLine(isGivenUp)) {
        if (*line == kWhole)
            return last;
        last = adviceOfMessage(QJsonDocument::fromJson(*line).object());
        if (tellFirst && last)
            tellFirst(*last);
    }
    return std::nullopt;
}

QList<Advice> adviceOnEach(HostSession &session, const QList<PPDMark> &wanted)
{
    ProcessCopy copy(kLongestSearch * wanted.size(),
                     [&](const ProcessCopy::Tell &tell) { adviseInCopy(session, wanted, tell); });
    QList<Advice> told;
    while (const std::optional<QByteArray> line = copy.nextLine())
        if (const auto advice = adviceOfMessage(QJsonDocument::fromJson(*line).object()))
            take(told, *advice);
    return told;
}
