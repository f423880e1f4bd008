#include "dialog/window/PresetActions.h"

#include "dialog/host/HostSession.h"
#include "dialog/printing/LastUsed.h"
#include "dialog/printing/Presets.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/HiddenAlertsDialog.h"
#include "dialog/window/OwnQuestion.h"
#include "dialog/window/PresetNameDialog.h"
#include "dialog/window/PresetsRow.h"
#include "platform/toolkit/PlainText.h"

#include <utility>

namespace {

constexpr int kKeep = 1; // of the question whether to delete

} // namespace

PresetActions::PresetActions(PrintJob &job, PresetsRow &row, QWidget &window)
    : QObject(&window), m_job(job), m_row(row), m_window(window)
{
    connect(&row, &PresetsRow::picked, this, &PresetActions::startWanted);
    connect(&row, &PresetsRow::saveWanted, this, &PresetActions::save);
    connect(&row, &PresetsRow::renameWanted, this, &PresetActions::rename);
    connect(&row, &PresetsRow::deleteWanted, this, &PresetActions::remove);
    connect(&row, &PresetsRow::hiddenAlertsWanted, this, &PresetActions::showHiddenAlerts);
}

void PresetActions::show(bool isOpen)
{
    const PrinterSource &source = m_job.source();
    PresetChoices choices;
    choices.start = source.start;
    choices.preset = source.queue.instance;
    choices.canSave = isOpen && !source.queue.queue.isEmpty();
    if (!source.queue.queue.isEmpty()) {
        choices.hasUsual = !savedOptions({source.queue.queue, {}}).isEmpty();
        choices.hasLastUsed = !lastUsedSettings(source.server, source.queue.queue).isEmpty();
        choices.presets = presetNames(source.queue.queue);
    }
    choices.ofPPD = presetsOf(m_job.ppd());
    m_row.showChoices(choices);
}

void PresetActions::save()
{
    PresetNameDialog dialog(tr("Save as Preset"), presetNames(m_job.source().queue.queue), true,
                            &m_window);
    dialog.setName(m_job.source().queue.instance);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Result<> saved = savePreset(m_job, dialog.name());
    if (!saved) {
        Q_EMIT told(NoticeBar::Kind::Error, saved.sentence());
        return;
    }
    m_isNew = true;
    Q_EMIT startWanted(dialog.name(), {});
}

void PresetActions::confirm(bool isOpen)
{
    const QString preset = m_job.source().queue.instance;
    if (!std::exchange(m_isNew, false) || !isOpen || isAsSaved(m_job, preset))
        return;
    const Result<> saved = savePreset(m_job, preset);
    Q_EMIT told(
        saved ? NoticeBar::Kind::Warning : NoticeBar::Kind::Error,
        saved ? tr("Some of the settings do not go together: the preset has what is shown now.")
              : saved.sentence());
}

void PresetActions::rename()
{
    const QueueName preset = m_job.source().queue;
    QStringList others = presetNames(preset.queue);
    others.removeAll(preset.instance);
    PresetNameDialog dialog(tr("Rename Preset"), others, false, &m_window);
    dialog.setName(preset.instance);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Result<> renamed = renamePreset(preset, dialog.name());
    if (renamed)
        Q_EMIT startWanted(dialog.name(), {});
    else
        Q_EMIT told(NoticeBar::Kind::Error, renamed.sentence());
}

void PresetActions::remove()
{
    const QueueName preset = m_job.source().queue;
    AlertContent question;
    question.style = AlertStyle::Warning;
    question.text = tr("Delete the preset \"%1\"?").arg(displayText(preset.instance));
    question.buttons = {tr("Delete"), tr("Keep")};
    question.defaultButton = kKeep;
    if (askOwn(question) == kKeep)
        return;
    const Result<> deleted = deletePreset(preset);
    if (deleted)
        Q_EMIT startWanted({}, {});
    else
        Q_EMIT told(NoticeBar::Kind::Error, deleted.sentence());
}

void PresetActions::showHiddenAlerts()
{
    const Bundle *bundle = m_job.session() ? m_job.session()->bundle() : nullptr;
    if (!bundle || hiddenAlerts(*bundle).isEmpty()) {
        Q_EMIT told(NoticeBar::Kind::Information, tr("No warnings are hidden: all are shown."));
        return;
    }
    HiddenAlertsDialog(*bundle, &m_window).exec();
}
