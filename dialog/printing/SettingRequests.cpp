#include "dialog/printing/SettingRequests.h"

#include "dialog/host/CustomParameters.h"
#include "dialog/host/HostSession.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/job/Conflicts.h"
#include "dialog/job/FeatureTexts.h"
#include "dialog/job/Papers.h"
#include "dialog/job/SettingTitle.h"
#include "dialog/printing/OwnSettings.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/work/Sentences.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPageSize = "PageSize"_L1;
constexpr auto kPageRegion = "PageRegion"_L1; // the same papers once more, in every PPD
constexpr auto kCustom = "Custom"_L1;

constexpr qsizetype kMostValues = 8; // values, in one sentence

/// What lp has a letter for.
struct Letter
{
    QLatin1String keyword;
    QLatin1String option;
};

constexpr std::array kLetters{Letter{"copies"_L1, "-n"_L1}, Letter{"page-ranges"_L1, "-P"_L1},
                              Letter{"job-priority"_L1, "-q"_L1},
                              Letter{"job-hold-until"_L1, "-H"_L1}};

/// The keyword as it is typed, either way.
QString typedName(const QString &keyword)
{
    const auto *letter = std::ranges::find(kLetters, keyword, &Letter::keyword);
    return letter == kLetters.end() ? displayText(keyword)
                                    : QStringLiteral("%1 (%2)").arg(keyword, letter->option);
}

QString valuesSentence(const QStringList &values)
{
    QStringList named;
    for (const QString &value : values.first(std::min(values.size(), kMostValues)))
        named += displayText(value);
    const QString list = named.join(QCoreApplication::translate("SettingRequests", ", "));
    const qsizetype more = values.size() - named.size();
    return more == 0 ? QCoreApplication::translate("SettingRequests", "It can be: %1.").arg(list)
                     : QCoreApplication::translate("SettingRequests", "It can be: %1 and %2 more.")
                           .arg(list, QString::number(more));
}

Fault settingFault(const QString &sentence)
{
    return {FaultKind::Request, sentence};
}

// --- What is known -------------------------------------------------------------------------------

QString millimetres(double points)
{
    return QString::number(qRound(points / kPointsPerMillimetre * 10) / 10.0);
}

Result<> checkCustomPaper(ppd_file_t *ppd, const PMPaper &paper)
{
    const std::optional<CustomLimits> limits = customLimits(ppd);
    if (!limits)
        return settingFault(QCoreApplication::translate(
            "SettingRequests", "The printer takes no paper of a size of your own."));
    if (isWithin(*limits, paper.width, paper.height))
        return {};
    return settingFault(QCoreApplication::translate(
                            "SettingRequests",
                            "The printer takes no paper of %1 × %2 mm: sizes of your own go "
                            "from %3 × %4 mm to %5 × %6 mm.")
                            .arg(millimetres(paper.width), millimetres(paper.height),
                                 millimetres(limits->minWidth), millimetres(limits->minHeight),
                                 millimetres(limits->maxWidth), millimetres(limits->maxHeight)));
}

/// The paper of a known choice.
PMPaper paperOf(const PrintJob &job, const QString &choice)
{
    const std::optional<PMPaper> listed = paperOfChoice(job.ppd(), choice);
    return listed ? *listed : parseCustomPaper(choice).value_or(PMPaper());
}

Result<RequestedChoice> knownPaper(const PrintJob &job, const QString &paper)
{
    // libcups lists it among the papers of a PPD that takes sizes of the user's own.
    if (isSameName(paper, kCustom))
        return settingFault(QCoreApplication::translate(
            "SettingRequests", "A paper of a size of your own needs that size, such as "
                               "Custom.100x150mm."));
    const QString choice = job.session()->spelled(kPageSize, paper).choice;
    const std::optional<PMPaper> custom = parseCustomPaper(choice);
    if (paperOfChoice(job.ppd(), choice))
        return RequestedChoice{kPageSize, choice};
    if (!custom)
        return settingFault(joinedSentences(
            {QCoreApplication::translate("SettingRequests", "The printer has no paper %1.")
                 .arg(displayText(paper)),
             valuesSentence(typedChoices(job.ppd(), kPageSize))}));
    return checkCustomPaper(job.ppd(), *custom).andThen([&] {
        return Result<RequestedChoice>(RequestedChoice{kPageSize, custom->name});
    });
}

Result<RequestedChoice> knownOwnSetting(const RequestedChoice &wanted)
{
    const QString value = normalizedOwnValue(wanted.keyword, wanted.choice);
    if (value.isNull())
        return noSuchValue(wanted, ownValues(wanted.keyword));
    return RequestedChoice{ownSettingName(wanted.keyword), value};
}

/// The name alone of a value that is the user's to say.
bool lacksItsValues(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    return isCustomName(choice) && !customParameters(ppd, keyword).isEmpty();
}

/// With what is wrong with a value of the user's own, where it is one.
Fault wrongChoice(ppd_file_t *ppd, const RequestedChoice &wanted)
{
    const auto own = parametersOf(wanted.choice, customParameters(ppd, wanted.keyword));
    const auto isWrong = [](const CustomParameter &one) { return !faultText(one).isNull(); };
    const auto wrong = std::ranges::find_if(own, isWrong);
    const Fault fault = noSuchValue(wanted, typedChoices(ppd, wanted.keyword));
    return wrong == own.end() ? fault
                              : settingFault(joinedSentences({fault.sentence, faultText(*wrong)}));
}

Result<RequestedChoice> knownChoice(const PrintJob &job, const RequestedChoice &wanted)
{
    const auto [keyword, choice] = job.session()->spelled(wanted.keyword, wanted.choice);
    if (!isChoice(job.ppd(), keyword))
        return noSuchSetting(keyword);
    const QString value = normalizedValue(job.ppd(), keyword, choice);
    if (value.isNull() || lacksItsValues(job.ppd(), keyword, value))
        return wrongChoice(job.ppd(), {keyword, choice});
    return RequestedChoice{keyword, value};
}

// --- What the job has ----------------------------------------------------------------------------

bool isPaper(const RequestedChoice &known)
{
    return known.keyword == kPageSize;
}

/// What the slider of the setting sends; none where it has no slider.
std::optional<double> sentBySlider(const PrintJob &job, const RequestedChoice &known)
{
    if (placeInPanels(*job.session(), known.keyword))
        return std::nullopt;
    const QString slider = sliderOf(*job.session(), known.keyword);
    return slider.isNull() ? std::nullopt : valueOfSlider(*job.session(), slider);
}

/// The job's value of the setting as the printer's texts have it; null when it has none.
QString currentText(const PrintJob &job, const RequestedChoice &known)
{
    if (isPaper(known))
        return job.paper() ? paperText(job.ppd(), *job.paper()) : QString();
    if (const std::optional<double> sent = sentBySlider(job, known))
        return QString::number(*sent);
    const QString marked = markedValue(job.ppd(), known.keyword);
    return marked.isNull() ? QString() : valueText(job.ppd(), known.keyword, marked);
}

} // namespace

Fault noSuchValue(const RequestedChoice &wanted, const QStringList &values)
{
    const QString refusal = QCoreApplication::translate("SettingRequests", "%2 is no value for %1.")
                                .arg(typedName(wanted.keyword), displayText(wanted.choice));
    return settingFault(values.isEmpty() ? refusal
                                         : joinedSentences({refusal, valuesSentence(values)}));
}

Fault noSuchSetting(const QString &keyword)
{
    return settingFault(
        QCoreApplication::translate("SettingRequests", "The printer has no setting %1.")
            .arg(displayText(keyword)));
}

Fault severalChoices(const RequestedChoice &wanted, const QStringList &choices)
{
    const QString typed = wanted.keyword + u'=' + wanted.choice;
    return settingFault(
        joinedSentences({QCoreApplication::translate(
                             "SettingRequests", "%1 stands for several choices of this printer.")
                             .arg(displayText(typed)),
                         valuesSentence(choices)}));
}

QStringList typedChoices(ppd_file_t *ppd, const QString &keyword)
{
    QStringList choices;
    const ppd_option_t *option = findOption(ppd, keyword);
    for (int index = 0; option && index < option->num_choices; ++index) {
        const QString choice = ppdName(option->choices[index].choice);
        choices += lacksItsValues(ppd, keyword, choice) ? customForm(customParameters(ppd, keyword))
                                                        : choice;
    }
    return choices;
}

Result<> checkOwnSettings(const QList<RequestedChoice> &wanted)
{
    for (const RequestedChoice &one : wanted)
        if (isOwnSetting(one.keyword))
            if (const Result<RequestedChoice> known = knownOwnSetting(one); !known)
                return known.fault();
    return {};
}

Result<RequestedChoice> knownSetting(const PrintJob &job, const RequestedChoice &wanted)
{
    if (isOwnSetting(wanted.keyword))
        return knownOwnSetting(wanted);
    if (!job.session())
        return settingFault(QCoreApplication::translate("SettingRequests",
                                                        "%1 cannot be set: the queue has no PPD.")
                                .arg(displayText(wanted.keyword)));
    if (isSameName(wanted.keyword, kPageSize) || isSameName(wanted.keyword, kPageRegion))
        return knownPaper(job, wanted.choice);
    return knownChoice(job, wanted);
}

void makeSetting(PrintJob &job, const RequestedChoice &known)
{
    if (isOwnSetting(known.keyword)) {
        takeOwnSetting(job, known.keyword, known.choice);
        return;
    }
    const bool isAllowed = refusalSentence(job.ppd(), known.keyword, known.choice).isNull();
    if (isPaper(known)) {
        if (isAllowed)
            job.setPaper(paperOf(job, known.choice));
        return;
    }
    if (!pickInPanels(*job.session(), known.keyword, known.choice) && isAllowed)
        job.mark(known.keyword, known.choice);
}

bool hasSetting(const PrintJob &job, const RequestedChoice &known)
{
    if (isOwnSetting(known.keyword))
        return true;
    if (isPaper(known))
        return job.paper() && job.paper()->name == known.choice;
    if (const std::optional<double> sent = sentBySlider(job, known))
        return qFuzzyCompare(1 + *sent, 1 + known.choice.toDouble());
    return job.session()->choiceForms().areSame(known.keyword, known.choice,
                                                markedValue(job.ppd(), known.keyword));
}

QString lossSentence(const PrintJob &job, const RequestedChoice &known)
{
    QString clash = refusalSentence(job.ppd(), known.keyword, known.choice);
    if (!clash.isNull())
        return clash;
    const QString wanted =
        displayText(known.keyword) + u'=' + displayText(known.choice); // as it is typed
    const QString value = currentText(job, known);
    if (!findOption(job.ppd(), known.keyword) || value.isEmpty())
        return QCoreApplication::translate(
                   "SettingRequests",
                   "%1 cannot be chosen while the other settings are as they are.")
            .arg(wanted);
    return QCoreApplication::translate("SettingRequests",
                                       "%1 cannot be chosen while the other settings are as they "
                                       "are. %2 is %3 instead.")
        .arg(wanted, settingTitle(job.ppd(), known.keyword), displayText(value));
}
