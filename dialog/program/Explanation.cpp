#include "dialog/program/Explanation.h"

#include "dialog/advice/Advising.h"
#include "dialog/advice/RemedyWords.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/OwnSettings.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/program/CommandOutput.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <utility>

void Explanation::begin()
{
    m_former = settingState(m_job);
}

void Explanation::tellMade(const RequestedChoice &setting)
{
    if (!m_isWanted || !m_job.session() || isOwnSetting(setting.keyword))
        return;
    const SettingState now = settingState(m_job);
    // Whoever types options wants to know what is sent: forms of one another are told apart.
    QList<SettingChange> changes = changesBeside({setting.keyword, setting.choice},
                                                 std::exchange(m_former, now), now, ChoiceForms());
    // What has become of the setting itself is told in the end, when it was lost.
    changes.removeIf([&](const SettingChange &one) { return one.keyword == setting.keyword; });
    if (!changes.isEmpty())
        warn(QCoreApplication::translate("Explanation", "%1: %2")
                 .arg(nameOfChoice(m_job.ppd(), setting.keyword, setting.choice),
                      changeSentence(m_job.ppd(), changes)));
}

void Explanation::tellLost(const QList<RequestedChoice> &lost) const
{
    if (!m_isWanted || !m_job.session())
        return;
    for (const RequestedChoice &setting : lost) {
        const Result<PPDMark> wanted =
            choiceOfPPD(*m_job.session(), setting.keyword, setting.choice);
        const std::optional<Advice> advice =
            wanted ? adviceOn(*m_job.session(), *wanted) : std::nullopt;
        if (!advice)
            continue;
        warn(advice->sentence);
        if (const QString options = optionsToType(*advice); !options.isNull())
            warn(QCoreApplication::translate("Explanation", "It can be had with: %1").arg(options));
    }
}

QString optionsToType(const Advice &advice)
{
    if (advice.outcome != Advice::Outcome::Possible)
        return {};
    QStringList options;
    for (const SettingChange &change : advice.remedies.constFirst().changes)
        options += QStringLiteral("-o %1=%2").arg(change.keyword, change.to);
    options += QStringLiteral("-o %1=%2").arg(advice.keyword, advice.choice);
    return displayText(options.join(u' '));
}
