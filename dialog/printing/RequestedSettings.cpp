#include "dialog/printing/RequestedSettings.h"

#include "dialog/host/HostSession.h"
#include "dialog/printing/OwnSettings.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/work/Sentences.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostRounds = 5;

/// What makes a setting that needs the panels, in the order in which settings are made: what others
/// depend on comes first, and last what may switch the panels off, as some watched keywords do.
enum class Maker { Dialog, Panel, Slider, Watched };

Maker makerOf(const HostSession &session, const QString &keyword)
{
    if (placeInPanels(session, keyword))
        return Maker::Panel;
    if (!sliderOf(session, keyword).isNull())
        return Maker::Slider;
    return session.watchedKeywords().contains(keyword) ? Maker::Watched : Maker::Dialog;
}

auto turnOf(const HostSession &session, const RequestedChoice &setting)
{
    return std::tuple(makerOf(session, setting.keyword),
                      placeInPanels(session, setting.keyword).value_or(0), setting.keyword,
                      setting.choice);
}

/// The settings that can be made, each once. The fault is that of the first of the others, in the
/// order of their names.
std::pair<QList<RequestedChoice>, Result<>> knownSettings(const PrintJob &job,
                                                          QList<RequestedChoice> wanted)
{
    std::ranges::sort(wanted, {},
                      [](const RequestedChoice &one) { return std::tie(one.keyword, one.choice); });
    QList<RequestedChoice> known;
    Result<> state;
    for (const RequestedChoice &one : std::as_const(wanted)) {
        const Result<RequestedChoice> found = knownSetting(job, one);
        if (found && !known.contains(*found))
            known += *found;
        else if (!found && state)
            state = found.fault();
    }
    return {known, state};
}

bool contradict(const PrintJob &job, const RequestedChoice &one, const RequestedChoice &other)
{
    const bool areForms = job.session() && job.session()->choiceForms().areSame(
                                               one.keyword, one.choice, other.choice);
    return one.keyword == other.keyword && one.choice != other.choice && !areForms;
}

/// Takes out the settings that were asked for in two ways.
Result<> withoutContradictions(const PrintJob &job, QList<RequestedChoice> &settings)
{
    Result<> state;
    const QList<RequestedChoice> all = settings;
    for (const RequestedChoice &one : all) {
        const auto other = std::ranges::find_if(
            all, [&](const RequestedChoice &second) { return contradict(job, one, second); });
        if (other == all.end())
            continue;
        settings.removeOne(one);
        if (state)
            state = Fault{
                FaultKind::Request,
                QCoreApplication::translate(
                    "RequestedSettings", "%1=%2 and %1=%3 cannot both be had: ask for one of them.")
                    .arg(displayText(one.keyword), displayText(one.choice),
                         displayText(other->choice))};
    }
    return state;
}

bool isOfThePage(const RequestedChoice &setting)
{
    return isOwnSetting(setting.keyword) || setting.keyword == "PageSize"_L1;
}

QList<RequestedChoice> missingIn(const PrintJob &job, const QList<RequestedChoice> &settings)
{
    QList<RequestedChoice> missing = settings;
    missing.removeIf([&](const RequestedChoice &setting) { return hasSetting(job, setting); });
    return missing;
}

/// The page first: panels whose controls are filled afterwards know it from the beginning.
void makeInTurn(PrintJob &job, const QList<RequestedChoice> &settings,
                const std::function<void(const RequestedChoice &)> &madeOne)
{
    QList<RequestedChoice> turns = settings;
    const auto later = std::stable_partition(turns.begin(), turns.end(), isOfThePage);
    if (later != turns.end()) {
        prepareControls(*job.session());
        std::ranges::sort(later, turns.end(), {}, [&](const RequestedChoice &setting) {
            return turnOf(*job.session(), setting);
        });
    }
    for (const RequestedChoice &setting : std::as_const(turns)) {
        makeSetting(job, setting);
        if (madeOne)
            madeOne(setting);
    }
}

/// Makes the settings in rounds, each those that the round before has not given or has taken away,
/// until all are there or nothing is won any more. Gives those that are missing in the end.
QList<RequestedChoice> makeInRounds(PrintJob &job, const QList<RequestedChoice> &settings,
                                    const std::function<void(const RequestedChoice &)> &madeOne)
{
    QList<RequestedChoice> missing = settings;
    for (int round = 0; round < kMostRounds && !missing.isEmpty(); ++round) {
        makeInTurn(job, missing, madeOne);
        if (job.session())
            savePreparedPanels(*job.session());
        const QList<RequestedChoice> tried = std::exchange(missing, missingIn(job, settings));
        if (missing == tried)
            break;
    }
    return missing;
}

} // namespace

Result<> makeSettings(PrintJob &job, const QList<RequestedChoice> &wanted,
                      const std::function<void(const RequestedChoice &)> &madeOne)
{
    auto [settings, state] = knownSettings(job, wanted);
    const Result<> single = withoutContradictions(job, settings);
    for (const RequestedChoice &setting : std::as_const(settings))
        job.noteChoice({setting.keyword, setting.choice});
    QStringList losses;
    for (const RequestedChoice &missing : makeInRounds(job, settings, madeOne))
        losses += lossSentence(job, missing);
    if (!state || !single)
        return state ? single : state;
    return losses.isEmpty() ? Result<>() : Fault{FaultKind::Vetoed, joinedSentences(losses)};
}

QList<RequestedChoice> lostSettings(const PrintJob &job, const QList<RequestedChoice> &wanted)
{
    return missingIn(job, knownSettings(job, wanted).first);
}
