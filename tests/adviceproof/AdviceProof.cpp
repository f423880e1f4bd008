#include "tests/adviceproof/AdviceProof.h"

#include "dialog/advice/Advising.h"
#include "dialog/advice/PossibleChanges.h"
#include "dialog/advice/SettingsImage.h"
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

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kLongestProof{3600}; // of CPU time
constexpr qsizetype kRemediesTried = 2;

QByteArrayList linesOf(const std::function<void(const ProcessCopy::Tell &)> &work)
{
    ProcessCopy copy(kLongestProof, work);
    QByteArrayList lines;
    while (const std::optional<QByteArray> line = copy.nextLine())
        lines += *line;
    return lines;
}

QByteArray contentsHash(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result().toHex()
                                                                 : QByteArray();
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

    void save()
    {
        savePreparedPanels(*m_job.session());
        m_answers.answerSheets();
    }

    QString current(const QString &keyword) const
    {
        return keyword == "PageSize"_L1 ? m_job.paper().value_or(PMPaper()).name
                                        : markedValue(m_job.ppd(), keyword);
    }

    /// Whether the choice is had, with the changes that have been made.
    bool gives(const QList<PPDMark> &changes, const PPDMark &wanted)
    {
        make(wanted);
        save();
        const bool isMarked = current(wanted.keyword) == wanted.choice;
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

/// Whether it is worth a copy of the process to find out whether the choice is had.
bool mayBeHad(OpenedState &state, const PPDMark &wanted)
{
    return state.has(wanted) || canBePicked(state.job(), wanted);
}

/// Which of the choices are not had when they are picked and saved. Each is taken back; where that
/// does not lead back to what was before, the copy that tells of them ends.
void tellLacking(OpenedState &state, const QList<PPDMark> &choices, const ProcessCopy::Tell &tell)
{
    state.save();
    const SettingsImage image(state.job(), choices.constFirst());
    const QByteArray before = image.text();
    for (const PPDMark &wanted : choices) {
        const PPDMark former{wanted.keyword, state.current(wanted.keyword)};
        const bool isHad = mayBeHad(state, wanted) && state.gives({}, wanted);
        tell(isHad ? "had" : "lacking");
        state.make(former);
        if (!image.isWhole() || image.text() != before)
            return;
    }
}

QList<PPDMark> lacking(OpenedState &state)
{
    QList<PPDMark> choices = allChoices(*state.job().session());
    QList<PPDMark> found;
    while (!choices.isEmpty()) {
        const QByteArrayList lines =
            linesOf([&](const ProcessCopy::Tell &tell) { tellLacking(state, choices, tell); });
        for (qsizetype index = 0; index < lines.size(); ++index)
            if (lines[index] == "lacking")
                found += choices[index];
        choices.remove(0, std::max<qsizetype>(lines.size(), 1));
    }
    return found;
}

QList<Advice> adviceOnSome(OpenedState &state, const ProofExtent &extent)
{
    Random random(extent.seed, 1);
    QList<PPDMark> choices = lacking(state);
    QList<Advice> told;
    while (told.size() < extent.most && !choices.isEmpty()) {
        const PPDMark wanted = choices.takeAt(random.below(static_cast<int>(choices.size())));
        const std::optional<Advice> advice = adviceOn(*state.job().session(), wanted);
        if (advice && advice->outcome != Advice::Outcome::Available)
            told += *advice;
    }
    return told;
}

/// Whether the remedy gives the choice; in a copy of the process that has the state.
bool isGivenBy(OpenedState &state, const QList<SettingChange> &changes, const PPDMark &wanted)
{
    const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tell) {
        QList<PPDMark> made;
        for (const SettingChange &change : changes) {
            made += PPDMark{change.keyword, change.to};
            state.make(made.constLast());
            if (!state.has(made.constLast()))
                return;
        }
        if (state.gives(made, wanted))
            tell("given");
    });
    return !lines.isEmpty();
}

bool areGivers(OpenedState &state, const Advice &advice)
{
    const qsizetype tried = std::min(advice.remedies.size(), kRemediesTried);
    return tried > 0 && std::ranges::all_of(advice.remedies.first(tried), [&](const Remedy &one) {
               return isGivenBy(state, one.changes, {advice.keyword, advice.choice});
           });
}

/// The choices that sets of so many changes more are to be tried for, by where they stand.
using Wanted = QMap<int, PPDMark>;

bool changes(const QList<PPDMark> &made, const QString &keyword)
{
    return std::ranges::find(made, keyword, &PPDMark::keyword) != made.end();
}

/// Tells, for each of them, which are given when all has been made.
void tellGiven(OpenedState &state, const QList<PPDMark> &made, const Wanted &wanted,
               const ProcessCopy::Tell &tell)
{
    for (const auto &[place, choice] : wanted.asKeyValueRange()) {
        if (changes(made, choice.keyword) || !mayBeHad(state, choice))
            continue;
        const QByteArrayList lines =
            linesOf([&, &wish = choice](const ProcessCopy::Tell &tellGives) {
                if (state.gives(made, wish))
                    tellGives("given");
            });
        if (!lines.isEmpty())
            tell(QByteArray::number(place) + ' ' + lineOf(made));
    }
}

/// Tries all sets, each in a copy of its own.
void tellSets(OpenedState &state, const QList<PPDMark> &made, int size, const Wanted &wanted,
              const ProcessCopy::Tell &tell)
{
    for (const PPDMark &change : possibleChanges(state.job())) {
        if (changes(made, change.keyword))
            continue;
        const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tellOn) {
            state.make(change);
            if (!state.has(change))
                return;
            if (size > 1)
                tellSets(state, made + QList{change}, size - 1, wanted, tellOn);
            else
                tellGiven(state, made + QList{change}, wanted, tellOn);
        });
        for (const QByteArray &line : lines)
            tell(line);
    }
}

/// Up to how many changes the sets are to have that are tried against what was said.
int sizesToTry(const Advice &advice, const ProofExtent &extent)
{
    if (advice.outcome == Advice::Outcome::Unknown)
        return 0;
    if (advice.outcome == Advice::Outcome::Impossible)
        return extent.impossible;
    const auto takes = static_cast<int>(advice.remedies.constFirst().changes.size());
    return takes == 3 && !extent.hasPairs ? 1 : takes - 1;
}

void trySets(OpenedState &state, QList<Proof> &proofs, int size)
{
    Wanted wanted;
    for (int place = 0; place < proofs.size(); ++place)
        if (const Advice &advice = proofs[place].advice; proofs[place].tried >= size)
            wanted.insert(place, {advice.keyword, advice.choice});
    if (wanted.isEmpty())
        return;
    const QByteArrayList lines =
        linesOf([&](const ProcessCopy::Tell &tell) { tellSets(state, {}, size, wanted, tell); });
    for (const QByteArray &line : lines) {
        const qsizetype end = line.indexOf(' ');
        proofs[line.left(end).toInt()].smaller = marksOfLine(line.mid(end + 1));
    }
}

QJsonObject report(const Proof &proof)
{
    return {{u"advice"_s, adviceMessage(proof.advice)},
            {u"isGiven"_s, proof.isGiven},
            {u"tried"_s, proof.tried},
            {u"smaller"_s, QString::fromUtf8(lineOf(proof.smaller))}};
}

Proof proofOf(const QJsonObject &report)
{
    return {adviceOfMessage(report[u"advice"_s].toObject()).value_or(Advice()),
            report[u"isGiven"_s].toBool(), report[u"tried"_s].toInt(),
            marksOfLine(report[u"smaller"_s].toString().toUtf8())};
}

/// In a copy of the process whose only session this is: what was said is held against a session
/// that knows nothing of it.
void tellProofs(const ProofState &state, const QByteArrayList &advice, const ProofExtent &extent,
                const ProcessCopy::Tell &tell)
{
    OpenedState opened(state);
    QList<Proof> proofs;
    for (const QByteArray &line : advice) {
        Proof proof{adviceOfMessage(QJsonDocument::fromJson(line).object()).value_or(Advice()),
                    false,
                    0,
                    {}};
        proof.tried = sizesToTry(proof.advice, extent);
        proof.isGiven = areGivers(opened, proof.advice);
        proofs += proof;
    }
    for (int size = 1; size <= 3; ++size)
        trySets(opened, proofs, size);
    for (const Proof &proof : proofs)
        tell(QJsonDocument(report(proof)).toJson(QJsonDocument::Compact));
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

QList<Proof> proofsIn(const ProofState &state, const ProofExtent &extent, QSet<QByteArray> &seen)
{
    QByteArrayList advice = linesOf([&](const ProcessCopy::Tell &tell) {
        OpenedState opened(state);
        const QByteArray image = contentsHash(state.ppd) + SettingsImage(opened.job(), {}).text();
        tell(image);
        if (seen.contains(image))
            return;
        for (const Advice &said : adviceOnSome(opened, extent))
            tell(QJsonDocument(adviceMessage(said)).toJson(QJsonDocument::Compact));
    });
    if (!advice.isEmpty())
        seen.insert(advice.takeFirst());
    if (advice.isEmpty())
        return {};
    const QByteArrayList lines =
        linesOf([&](const ProcessCopy::Tell &tell) { tellProofs(state, advice, extent, tell); });
    QList<Proof> proofs;
    for (const QByteArray &line : lines)
        proofs += proofOf(QJsonDocument::fromJson(line).object());
    return proofs;
}
