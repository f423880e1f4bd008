#include "dialog/advice/WayBack.h"

#include "dialog/advice/SettingsImage.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingState.h"

#include <QtCore/QHash>

#include <utility>

namespace {

constexpr int kMostRounds = 2;

/// By keyword, as its control shows it, which may not be marked yet, else as it is marked.
QHash<QString, QString> currentSettings(const SettingState &state)
{
    QHash<QString, QString> settings;
    for (const QList<PPDMark> &marks : {state.marks, state.shown})
        for (const PPDMark &mark : marks)
            settings.insert(mark.keyword, mark.choice);
    return settings;
}

/// Those that are shown first, in the order of the panels: their rules change the others.
QList<PPDMark> settingsInOrder(const PrintJob &job)
{
    const SettingState state = settingState(job);
    QHash<QString, QString> left = currentSettings(state);
    QList<PPDMark> settings;
    for (const QList<PPDMark> &marks : {state.shown, state.marks})
        for (const PPDMark &mark : marks)
            if (const QString choice = left.take(mark.keyword); !choice.isNull())
                settings += PPDMark{mark.keyword, choice};
    return settings;
}

} // namespace

WayBack::WayBack(const PrintJob &job, const SettingsImage &image, Make make)
    : m_job(job),
      m_image(image),
      m_make(std::move(make)),
      m_former(settingsInOrder(job)),
      m_text(image.text())
{}

bool WayBack::goBack() const
{
    if (!m_image.isWhole())
        return false;
    // What was picked last may allow what could not be picked before it.
    for (int round = 0; round < kMostRounds; ++round) {
        if (m_image.text() == m_text)
            return true;
        if (!pickFormer())
            return false;
    }
    return m_image.text() == m_text;
}

/// Picks whatever is otherwise than it was. False when nothing is.
bool WayBack::pickFormer() const
{
    QHash<QString, QString> current = currentSettings(settingState(m_job));
    bool isOtherwise = false;
    for (const PPDMark &former : m_former) {
        if (current.value(former.keyword) == former.choice)
            continue;
        m_make(former);
        current = currentSettings(settingState(m_job)); // rules may have put others right
        isOtherwise = true;
    }
    return isOtherwise;
}
