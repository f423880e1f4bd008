#include "dialog/printing/KeptSettings.h"

#include "dialog/host/HostSession.h"
#include "dialog/job/SettingTitle.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/Presets.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingState.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>

namespace {

constexpr qsizetype kMostLosses = 6; // in one sentence: another driver has everything otherwise

/// Whether the option only says once more, by a standard name, what a choice of the printer says.
bool isTwin(const JobOption &option, const QList<AttributeRule> &rules)
{
    return std::ranges::find(rules, option.name, &AttributeRule::attribute) != rules.end();
}

/// Whether somebody has settled it, and not the printer by its defaults; of a default, too, where
/// it was picked.
bool isSettled(const PrintJob &job, const SettingOrigins &origins, const JobOption &option,
               const QList<JobOption> &changed)
{
    const QString ofTicket =
        job.session() ? job.session()->keywordOfTicketKey(option.name) : QString();
    if (!ofTicket.isNull())
        return origins.originOf(ofTicket).kind != SettingOrigin::Kind::Printer;
    return changed.contains(option) || job.isChosen({option.name, option.value});
}

/// What became of the setting; null: it is as it was.
QString lossWords(const SettingInWords &was, ppd_file_t *ppd, const QHash<QString, QString> &now,
                  const ChoiceForms &forms)
{
    const QString &keyword = was.mark.keyword;
    const QString choice = now.value(keyword);
    if (!choice.isNull() && forms.areSame(keyword, was.mark.choice, choice))
        return {};
    return changeWords(was.title, was.choice,
                       choice.isNull() ? QString() : choiceWords(ppd, keyword, choice));
}

} // namespace

KeptSettings keptSettings(const PrintJob &job, const SettingOrigins &origins)
{
    KeptSettings kept;
    const QList<JobOption> changed = job.options().options;
    kept.options = job.wholeOptions().options;
    const QList<AttributeRule> rules = job.attributeRules();
    kept.options.removeIf([&](const JobOption &option) {
        return isTwin(option, rules) || !isSettled(job, origins, option, changed);
    });
    for (const PPDMark &mark : settingState(job).marks)
        kept.shown += SettingInWords{mark, settingTitle(job.ppd(), mark.keyword),
                                     choiceWords(job.ppd(), mark.keyword, mark.choice)};
    return kept;
}

QString lossSentence(const KeptSettings &kept, const PrintJob &job)
{
    if (!job.session())
        return {};
    const ChoiceForms &forms = job.session()->choiceForms();
    QHash<QString, QString> now;
    for (const PPDMark &mark : settingState(job).marks)
        now.insert(mark.keyword, mark.choice);
    QStringList losses;
    for (const SettingInWords &was : kept.shown)
        if (const QString words = lossWords(was, job.ppd(), now, forms); !words.isNull())
            losses += words;
    if (const qsizetype others = losses.size() - kMostLosses; others > 0)
        losses = losses.first(kMostLosses) +
                 QStringList{
                     QCoreApplication::translate("KeptSettings", "other changes: %1").arg(others)};
    return sentenceOfChanges(losses);
}
