#include "dialog/advice/SettingScratch.h"

#include "dialog/advice/PossibleChanges.h"
#include "dialog/advice/SettingsPrint.h"
#include "dialog/advice/TrialLine.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/work/ProcessCopy.h"
#include "platform/ppd/PPDText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kLongestTrial{2};    // of CPU time
constexpr std::chrono::seconds kLongestGround{600}; // with all that is tried on it
constexpr QByteArrayView kAllTried = "all";

QString currentChoice(const PrintJob &job, const QString &keyword)
{
    for (const PPDMark &mark : settingState(job).marks)
        if (mark.keyword == keyword)
            return mark.choice;
    return {};
}

/// The keywords of which the PPD's constraints speak, in lower case.
QSet<QString> constrainedKeywords(ppd_file_t *ppd)
{
    QSet<QString> keywords;
    for (int index = 0; index < ppd->num_consts; ++index) {
        keywords.insert(ppdName(ppd->consts[index].option1).toLower());
        keywords.insert(ppdName(ppd->consts[index].option2).toLower());
    }
    for (const ppd_attr_t *all = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); all;
         all = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr))
        for (const QString &word : QString::fromUtf8(all->value).split(u' ', Qt::SkipEmptyParts))
            if (word.startsWith(u'*'))
                keywords.insert(word.mid(1).toLower());
    return keywords;
}

/// What does not go together, and what is printed otherwise than it is shown: names that tell one
/// such trouble from another.
QSet<QString> troublesOf(const PrintJob &job)
{
    QSet<QString> troubles;
    if (ppdConflicts(job.ppd()) > 0)
        for (ppd_option_t *option = ppdFirstOption(job.ppd()); option;
             option = ppdNextOption(job.ppd()))
            if (option->conflicted)
                troubles += ppdName(option->keyword);
    for (const SettingChange &unlike : unlikeShown(settingState(job), job.session()->choiceForms()))
        troubles += u"shown "_s + unlike.keyword;
    if (isOnOneSidedPaper(job))
        troubles += u"sides"_s;
    return troubles;
}

} // namespace

SettingScratch::SettingScratch(PrintJob &job, const PPDMark &wanted, int mostTrials)
    : m_job(job),
      m_wanted(wanted),
      m_left(mostTrials),
      m_answers(true),
      m_constrained(constrainedKeywords(job.ppd()))
{
    prepareControls(*m_job.session());
    m_answers.answerSheets();
    m_base = settingState(m_job);
    m_troubles = troublesOf(m_job);
}

bool SettingScratch::isHad()
{
    ProcessCopy copy(kLongestTrial, [this](const ProcessCopy::Tell &tell) {
        tell(isHadAfterSave() && isSound({}) ? "yes" : "no");
    });
    return copy.nextLine() == "yes";
}

bool SettingScratch::tryEach(const QList<SettingChange> &made,
                             const std::function<bool(const SettingChange &)> &filter,
                             const std::function<void(const Trial &)> &take)
{
    bool isWhole = false;
    const auto takeLine = [&](const QByteArray &line) {
        isWhole = line == kAllTried;
        if (isWhole)
            return;
        --m_left;
        if (const std::optional<Trial> trial = trialOfLine(line))
            take(*trial);
    };
    if (made.isEmpty()) {
        tryEachHere(made, filter, takeLine);
        return isWhole;
    }
    ProcessCopy ground(kLongestGround, [&](const ProcessCopy::Tell &tell) {
        const bool areMade = std::ranges::all_of(made, [this](const SettingChange &change) {
            return make({change.keyword, change.to});
        });
        if (areMade)
            tryEachHere(made, filter, tell);
    });
    while (const std::optional<QByteArray> line = ground.nextLine())
        takeLine(*line);
    return isWhole;
}

/// Tries on what has been made in this process.
void SettingScratch::tryEachHere(const QList<SettingChange> &made,
                                 const std::function<bool(const SettingChange &)> &filter,
                                 const Take &take)
{
    int left = m_left;
    QHash<QString, QByteArray> before;
    for (const PPDMark &next : possibleChanges(m_job)) {
        const SettingChange change{next.keyword, currentChoice(m_job, next.keyword), next.choice};
        const bool isOther =
            next.keyword != m_wanted.keyword &&
            std::ranges::find(made, next.keyword, &SettingChange::keyword) == made.end();
        if (!isOther || !filter(change))
            continue;
        if (left-- <= 0)
            return;
        if (!before.contains(next.keyword))
            before.insert(next.keyword, printOfSettings(m_job, m_wanted, next.keyword));
        ProcessCopy copy(kLongestTrial, [&](const ProcessCopy::Tell &tell) {
            tell(lineOfTrial(tryOut(made, change, before.value(next.keyword))));
        });
        take(copy.nextLine().value_or(QByteArray()));
    }
    take(kAllTried.toByteArray());
}

Trial SettingScratch::tryOut(const QList<SettingChange> &made, const SettingChange &change,
                             const QByteArray &effectOfNone)
{
    Trial trial{change, false, false, {}, {}, {}};
    if (!make({change.keyword, change.to}))
        return trial;
    trial.state = printOfSettings(m_job, m_wanted, QString());
    const bool isConstrained = m_constrained.contains(change.keyword.toLower());
    const QByteArray effect = printOfSettings(m_job, m_wanted, change.keyword);
    if (isConstrained || effect != effectOfNone)
        trial.effect = isConstrained ? trial.state : effect;
    trial.isNearer = canBePicked(m_job, m_wanted);
    const QList<SettingChange> changes = made + QList{change};
    trial.isHad = isHadAfterSave() && isSound(changes);
    if (trial.isHad)
        trial.beside = changedBeside(changes);
    return trial;
}

/// Makes the setting as a person would. Whether it is there now.
bool SettingScratch::make(const PPDMark &choice)
{
    makeSetting(m_job, {choice.keyword, choice.choice});
    m_answers.answerSheets();
    return hasSetting(m_job, {choice.keyword, choice.choice});
}

/// Whether the wanted choice is marked when it has been picked, where it can be, and the panels
/// have saved their values.
bool SettingScratch::isHadAfterSave()
{
    const auto isMarked = [this] {
        return currentChoice(m_job, m_wanted.keyword) == m_wanted.choice;
    };
    if (canBePicked(m_job, m_wanted))
        make(m_wanted);
    else if (!isMarked())
        return false;
    savePreparedPanels(*m_job.session());
    m_answers.answerSheets();
    return isMarked();
}

/// Whether all changes stand, and nothing is wrong that was right.
bool SettingScratch::isSound(const QList<SettingChange> &changes) const
{
    const bool stand = std::ranges::all_of(changes, [this](const SettingChange &change) {
        return hasSetting(m_job, {change.keyword, change.to});
    });
    return stand && m_troubles.contains(troublesOf(m_job));
}

QList<SettingChange> SettingScratch::changedBeside(const QList<SettingChange> &changes) const
{
    QList<SettingChange> beside =
        changesBetween(m_base.marks, settingState(m_job).marks, m_job.session()->choiceForms());
    beside.removeIf([&](const SettingChange &one) {
        return one.keyword == m_wanted.keyword ||
               std::ranges::find(changes, one.keyword, &SettingChange::keyword) != changes.end();
    });
    return beside;
}
