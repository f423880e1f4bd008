#include "tests/adviceproof/AdviceProof.h"

#include "dialog/advice/Advising.h"
#include "dialog/advice/PossibleChanges.h"
#include "dialog/advice/SettingsImage.h"
#include "dialog/advice/WayBack.h"
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
constexpr int kTriedAlone = 2; // changes of each state

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
        m_wrong = wrong();
    }

    PrintJob &job() { return m_job; }

    void make(const PPDMark &mark)
    {
        makeSetting(m_job, {mark.keyword, mark.choice});
        m_answers.answerSheets();
    }

    bool has(const PPDMark &mark) const { return hasSetting(m_job, {mark.keyword, mark.choice}); }

    WayBack wayBack(const SettingsImage &image)
    {
        return WayBack(m_job, image, [this](const PPDMark &former) { make(former); });
    }

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
        const bool isNothingNew = std::ranges::all_of(
            wrong(), [this](const QString &one) { return m_wrong.contains(one); });
        return isMarked && stand && ppdConflicts(m_job.ppd()) <= m_conflicts && isNothingNew;
    }

private:
    /// What would be printed otherwise than it is shown, or not at all: a trouble of one setting in
    /// the place of another's is a new one.
    QStringList wrong() const
    {
        QStringList settings;
        for (const SettingChange &one :
             unlikeShown(settingState(m_job), m_job.session()->choiceForms()))
            settings += one.keyword;
        if (isOnOneSidedPaper(m_job))
            settings += u"sides"_s;
        return settings;
    }

    ScriptedAnswers m_answers;
    PrintJob m_job;
    int m_conflicts = 0;
    QStringList m_wrong;
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
    const SettingsImage image(state.job());
    const WayBack back = state.wayBack(image);
    for (const PPDMark &wanted : choices) {
        const bool isHad = mayBeHad(state, wanted) && state.gives({}, wanted);
        tell(isHad ? "had" : "lacking");
        if (!back.goBack())
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
    QList<PPDMark> asked;
    while (asked.size() < extent.most && !choices.isEmpty())
        asked += choices.takeAt(random.below(static_cast<int>(choices.size())));
    QList<Advice> told = adviceOnEach(*state.job().session(), asked);
    told.removeIf(
        [](const Advice &advice) { return advice.outcome == Advice::Outcome::Available; });
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

QList<PPDMark> changesOnTopOf(OpenedState &state, const QList<PPDMark> &made)
{
    QList<PPDMark> possible = possibleChanges(state.job());
    possible.removeIf([&](const PPDMark &change) { return changes(made, change.keyword); });
    return possible;
}

/// The first of the wanted choices, from that one on, that may be had now that all has been made;
/// how many there are when there is none.
qsizetype nextToTry(OpenedState &state, const QList<PPDMark> &made, const QList<PPDMark> &wanted,
                    qsizetype from)
{
    while (from < wanted.size() &&
           (changes(made, wanted[from].keyword) || !mayBeHad(state, wanted[from])))
        ++from;
    return from;
}

/// Tries each change with each wanted choice, from that pair on, for as long as there is a way
/// back. Tells of each where to go on, and when the choice was given.
void tellPairs(OpenedState &state, const QList<PPDMark> &made, const QList<PPDMark> &possible,
               const Wanted &wanted, qsizetype from, const ProcessCopy::Tell &tell)
{
    const QList<PPDMark> choices = wanted.values();
    const SettingsImage image(state.job());
    const WayBack back = state.wayBack(image);
    qsizetype place = from % choices.size();
    for (qsizetype change = from / choices.size(); change < possible.size(); ++change) {
        const QList<PPDMark> all = made + QList{possible[change]};
        const auto goOnAt = [&](qsizetype next) {
            return QByteArray::number(change * choices.size() + next);
        };
        state.make(possible[change]);
        const WayBack backToChange = state.wayBack(image);
        if (!state.has(possible[change]))
            place = choices.size();
        while ((place = nextToTry(state, all, choices, place)) < choices.size()) {
            const bool isGiven = state.gives(all, choices[place]);
            const QByteArray number = QByteArray::number(wanted.keys()[place]);
            const QByteArray next = goOnAt(++place);
            tell(isGiven ? next + ' ' + number + ' ' + lineOf(all) : next);
            if (place < choices.size() && !backToChange.goBack())
                return;
        }
        tell(goOnAt(choices.size()));
        if (!back.goBack())
            return;
        place = 0;
    }
}

/// Tries one change more, all that can be made, for all wanted choices.
void tellSingles(OpenedState &state, const QList<PPDMark> &made, const QList<PPDMark> &possible,
                 const Wanted &wanted, const ProcessCopy::Tell &tell)
{
    for (qsizetype pair = 0; pair < possible.size() * wanted.size();) {
        const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tellOn) {
            tellPairs(state, made, possible, wanted, pair, tellOn);
        });
        for (const QByteArray &line : lines)
            if (const qsizetype end = line.indexOf(' '); end > 0)
                tell(line.mid(end + 1));
        pair = lines.isEmpty() ? pair + 1 : lines.constLast().split(' ').constFirst().toLongLong();
    }
}

/// Tries all sets.
void tellSets(OpenedState &state, const QList<PPDMark> &made, int size, const Wanted &wanted,
              const ProcessCopy::Tell &tell)
{
    const QList<PPDMark> possible = changesOnTopOf(state, made);
    if (size == 1) {
        tellSingles(state, made, possible, wanted, tell);
        return;
    }
    for (const PPDMark &change : possible) {
        const QByteArrayList lines = linesOf([&](const ProcessCopy::Tell &tellOn) {
            state.make(change);
            if (state.has(change))
                tellSets(state, made + QList{change}, size - 1, wanted, tellOn);
        });
        for (const QByteArray &line : lines)
            tell(line);
    }
}

/// Tells the places of the choices that the change gives, each tried in a copy of its own, which
/// nothing leads back.
void tellGivenAlone(OpenedState &state, const PPDMark &change, const QList<Proof> &proofs,
                    const ProcessCopy::Tell &tell)
{
    state.make(change);
    for (qsizetype place = 0; state.has(change) && place < proofs.size(); ++place) {
        const PPDMark choice{proofs[place].advice.keyword, proofs[place].advice.choice};
        if (choice.keyword == change.keyword || !mayBeHad(state, choice))
            continue;
        const QByteArrayList given = linesOf([&](const ProcessCopy::Tell &tellGives) {
            if (state.gives({change}, choice))
                tellGives("given");
        });
        if (!given.isEmpty())
            tell(QByteArray::number(place));
    }
}

/// Whether it is said that the change alone gives the choice.
bool isSaidToGive(const Advice &advice, const PPDMark &change)
{
    return std::ranges::any_of(advice.remedies, [&](const Remedy &remedy) {
        const SettingChange &first = remedy.changes.constFirst();
        return remedy.changes.size() == 1 && first.keyword == change.keyword &&
               first.to == change.choice;
    });
}

/// Holds some of the changes against all that is said, whether they are said to give the choice or
/// not.
void tryAlone(OpenedState &state, QList<Proof> &proofs, quint32 seed)
{
    Random random(seed, 3);
    const QList<PPDMark> possible = possibleChanges(state.job());
    for (int count = 0; count < kTriedAlone && !possible.isEmpty(); ++count) {
        const PPDMark change = random.pick(possible);
        const QByteArrayList given = linesOf(
            [&](const ProcessCopy::Tell &tell) { tellGivenAlone(state, change, proofs, tell); });
        for (qsizetype place = 0; place < proofs.size(); ++place)
            if (isSaidToGive(proofs[place].advice, change) !=
                    given.contains(QByteArray::number(place)) &&
                proofs[place].advice.outcome != Advice::Outcome::Unknown)
                proofs[place].unlike += change;
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
    QByteArrayList lines;
    tellSets(state, {}, size, wanted, [&](const QByteArray &line) { lines += line; });
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
            {u"smaller"_s, QString::fromUtf8(lineOf(proof.smaller))},
            {u"unlike"_s, QString::fromUtf8(lineOf(proof.unlike))}};
}

Proof proofOf(const QJsonObject &report)
{
    return {adviceOfMessage(report[u"advice"_s].toObject()).value_or(Advice()),
            report[u"isGiven"_s].toBool(), report[u"tried"_s].toInt(),
            marksOfLine(report[u"smaller"_s].toString().toUtf8()),
            marksOfLine(report[u"unlike"_s].toString().toUtf8())};
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
                    {},
                    {}};
        proof.tried = sizesToTry(proof.advice, extent);
        proof.isGiven = areGivers(opened, proof.advice);
        proofs += proof;
    }
    for (int size = 1; size <= 3; ++size)
        trySets(opened, proofs, size);
    tryAlone(opened, proofs, extent.seed);
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
        QList<PPDMark> possible = possibleChanges(state.job());
        while (walk.size() < length && !possible.isEmpty()) {
            walk += random.pick(possible);
            state.make(walk.constLast());
            possible = possibleChanges(state.job());
        }
        tell(lineOf(walk));
    });
    return marksOfLine(lines.value(0));
}

QList<Proof> proofsIn(const ProofState &state, const ProofExtent &extent, QSet<QByteArray> &seen)
{
    QByteArrayList advice = linesOf([&](const ProcessCopy::Tell &tell) {
        OpenedState opened(state);
        const QByteArray image = contentsHash(state.ppd) + SettingsImage(opened.job()).text();
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
