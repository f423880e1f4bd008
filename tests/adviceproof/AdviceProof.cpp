#include "tests/adviceproof/AdviceProof.h"

#include "dialog/advice/Advising.h"
#include "dialog/advice/PossibleChanges.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/work/ProcessCopy.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/golden/Random.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kLongestProof{3600}; // of CPU time

QByteArrayList linesOf(const std::function<void(const ProcessCopy::Tell &)> &work)
{
    ProcessCopy copy(kLongestProof, work);
    QByteArrayList lines;
    while (const std::optional<QByteArray> line = copy.nextLine())
        lines += *line;
    return lines;
}

QByteArray lineOf(const QList<PPDMark> &marks)
{
    QStringList words;
    for (const PPDMark &mark : marks)
        words += mark.keyword + u'=' + mark.choice;
    return words.join(u' ').toUtf8();
}

QList<PPDMark> marksOfLine(const QByteArray &line)
{
    QList<PPDMark> marks;
    for (const QString &word : QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts))
        marks += PPDMark{word.section(u'=', 0, 0), word.section(u'=', 1)};
    return marks;
}

/// A job whose printer has just been opened, with its panels' controls filled.
class OpenedState
{
public:
    explicit OpenedState(const ProofState &state) : m_answers(true)
    {
        UserDefaults::standardUserDefaults().setFolder(QString());
        SessionOptions options;
        options.ppdPath = state.ppd;
        options.bundlePath = builtBundle();
        m_job.setPrinter({}, openPrinter(options, *openPPD(state.ppd), {}));
        prepareControls(*m_job.session());
        for (const PPDMark &mark : state.walk)
            make(mark);
        m_conflicts = ppdConflicts(m_job.ppd());
        m_doubts = doubtsOf(m_job, settingState(m_job)).size();
    }

    PrintJob &job() { return m_job; }

    void make(const PPDMark &mark)
    {
        makeSetting(m_job, {mark.keyword, mark.choice});
        m_answers.answerSheets();
    }

    bool has(const PPDMark &mark) const { return hasSetting(m_job, {mark.keyword, mark.choice}); }

    /// Whether the choice is had, with the changes that have been made.
    bool gives(const QList<PPDMark> &changes, const PPDMark &wanted)
    {
        make(wanted);
        savePreparedPanels(*m_job.session());
        m_answers.answerSheets();
        const bool isMarked = wanted.keyword == "PageSize"_L1
                                  ? has(wanted)
                                  : markedValue(m_job.ppd(), wanted.keyword) == wanted.choice;
        const bool stand =
            std::ranges::all_of(changes, [this](const PPDMark &one) { return has(one); });
        return isMarked && stand && ppdConflicts(m_job.ppd()) <= m_conflicts &&
               doubtsOf(m_job, settingState(m_job)).size() <= m_doubts;
    }

private:
    ScriptedAnswers m_answers;
    PrintJob m_job;
    int m_conflicts = 0;
    qsizetype m_doubts = 0;
};

/// But for values of sliders, which are no choices.
QList<PPDMark> allChoices(const HostSession &session)
{
    ppd_file_t *ppd = session.ppd();
    QList<PPDMark> all;
    for (const PPDMark &mark : marksOf(ppd)) {
        if (session.titledKeywords().contains(mark.keyword))
            continue;
        const ppd_option_t *option = findOption(ppd, mark.keyword);
        for (int index = 0; index < option->num_choices; ++index)
            if (const QString choice = ppdName(option->choices[index].choice);
                choice != mark.choice && choice != "Custom"_L1)
                all += PPDMark{mark.keyword, choice};
    }
    return all;
}

/// Tells the first set of so many changes more.
bool tellAnySet(OpenedState &state, const QList<PPDMark> &made, int size, const PPDMark &wanted,
                const ProcessCopy::Tell &tell)
{
    for (const PPDMark &change : possibleChanges(state.job())) {
        if (change.keyword == wanted.keyword ||
            std::ranges::find(made, change.keyword, &PPDMark::keyword) != made.end())
            continue;
        const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tellOn) {
            state.make(change);
            const QList<PPDMark> changes = made + QList{change};
            if (!state.has(change))
                return;
            if (size > 1)
                tellAnySet(state, changes, size - 1, wanted, tellOn);
            else if (state.gives(changes, wanted))
                tellOn(lineOf(changes));
        });
        if (!lines.isEmpty()) {
            tell(lines.constFirst());
            return true;
        }
    }
    return false;
}

} // namespace

QList<PPDMark> randomWalk(const QString &ppd, quint32 seed, int most)
{
    const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tell) {
        OpenedState state({ppd, {}});
        Random random(seed, 0);
        const int length = random.below(most + 1);
        QList<PPDMark> walk;
        while (walk.size() < length) {
            walk += random.pick(possibleChanges(state.job()));
            state.make(walk.constLast());
        }
        tell(lineOf(walk));
    });
    return marksOfLine(lines.value(0));
}

QList<Advice> adviceOnWhatIsLacking(const ProofState &state, quint32 seed, int most)
{
    const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tell) {
        OpenedState opened(state);
        Random random(seed, 1);
        QList<PPDMark> choices = allChoices(*opened.job().session());
        for (int told = 0; told < most && !choices.isEmpty();) {
            const PPDMark wanted = choices.takeAt(random.below(static_cast<int>(choices.size())));
            const std::optional<Advice> advice = adviceOn(*opened.job().session(), wanted);
            if (!advice || advice->outcome == Advice::Outcome::Available)
                continue;
            tell(QJsonDocument(adviceMessage(*advice)).toJson(QJsonDocument::Compact));
            ++told;
        }
    });
    QList<Advice> all;
    for (const QByteArray &line : lines)
        if (const auto advice = adviceOfMessage(QJsonDocument::fromJson(line).object()))
            all += *advice;
    return all;
}

bool isGivenBy(const ProofState &state, const QList<SettingChange> &changes, const PPDMark &wanted)
{
    const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tell) {
        OpenedState opened(state);
        QList<PPDMark> made;
        for (const SettingChange &change : changes) {
            made += PPDMark{change.keyword, change.to};
            opened.make(made.constLast());
            if (!opened.has(made.constLast()))
                return;
        }
        if (opened.gives(made, wanted))
            tell("given");
    });
    return !lines.isEmpty();
}

std::optional<QList<PPDMark>> anySetThatGives(const ProofState &state, int size,
                                              const PPDMark &wanted)
{
    const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tell) {
        OpenedState opened(state);
        tellAnySet(opened, {}, size, wanted, tell);
    });
    return lines.isEmpty() ? std::nullopt : std::optional(marksOfLine(lines.constFirst()));
}
