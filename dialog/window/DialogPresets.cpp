#include "dialog/printing/LastUsed.h"
#include "dialog/printing/Presets.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/HiddenAlertsDialog.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/PresetNameDialog.h"
#include "dialog/window/PresetsRow.h"
#include "platform/toolkit/Alert.h"
#include "platform/toolkit/PlainText.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kKeep = 1; // of the question whether to delete

} // namespace

void DialogWindow::connectPresets()
{
    PresetsRow *row = m_header->presets();
    connect(row, &PresetsRow::picked, this, &DialogWindow::startFrom);
    connect(row, &PresetsRow::saveWanted, this, &DialogWindow::savePreset);
    connect(row, &PresetsRow::renameWanted, this, &DialogWindow::renamePreset);
    connect(row, &PresetsRow::deleteWanted, this, &DialogWindow::deletePreset);
    connect(row, &PresetsRow::hiddenAlertsWanted, this, &DialogWindow::showHiddenAlerts);
}

/// What the printer's settings may start from, and what they have started from.
void DialogWindow::showPresets()
{
    const PrinterSource &source = job().source();
    PresetChoices choices;
    choices.start = source.start;
    choices.preset = source.queue.instance;
    choices.canSave = m_state == State::Ready && !source.queue.queue.isEmpty();
    if (!source.queue.queue.isEmpty()) {
        choices.hasUsual = !savedOptions({source.queue.queue, {}}).isEmpty();
        choices.hasLastUsed = !lastUsedSettings(source.server, source.queue.queue).isEmpty();
        choices.presets = presetNames(source.queue.queue);
    }
    choices.ofPPD = presetsOf(job().ppd());
    m_header->presets()->showChoices(choices);
}

/// Opens the printer again with other settings.
void DialogWindow::startFrom(const QString &preset, const StartingSettings &start)
{
    PrinterSource source = job().source();
    source.queue.instance = preset;
    source.start = start;
    closePrinter();
    findPrinter(source);
}

void DialogWindow::savePreset()
{
    PresetNameDialog dialog(tr("Save as Preset"), presetNames(job().source().queue.queue), true,
                            this);
    dialog.setName(job().source().queue.instance);
    if (dialog.exec() != QDialog::Accepted || m_isEnding)
        return;
    const Result<> saved = ::savePreset(job(), dialog.name());
    if (!saved) {
        tell(NoticeBar::Kind::Error, saved.sentence());
        return;
    }
    m_presetIsNew = true;
    startFrom(dialog.name(), {});
}

/// Looks at a preset that was saved just now, and opened: what panels have changed since does not
/// go together with the rest, and is saved as they have it.
void DialogWindow::confirmPreset()
{
    const QString preset = job().source().queue.instance;
    if (!std::exchange(m_presetIsNew, false) || m_state != State::Ready || isAsSaved(job(), preset))
        return;
    const Result<> saved = ::savePreset(job(), preset);
    tell(saved ? NoticeBar::Kind::Warning : NoticeBar::Kind::Error,
         saved ? tr("Some of the settings do not go together: the preset has what is shown now.")
               : saved.sentence());
}

void DialogWindow::renamePreset()
{
    const QueueName preset = job().source().queue;
    QStringList others = presetNames(preset.queue);
    others.removeAll(preset.instance);
    PresetNameDialog dialog(tr("Rename Preset"), others, false, this);
    dialog.setName(preset.instance);
    if (dialog.exec() != QDialog::Accepted || m_isEnding)
        return;
    const Result<> renamed = ::renamePreset(preset, dialog.name());
    if (renamed)
        startFrom(dialog.name(), {});
    else
        tell(NoticeBar::Kind::Error, renamed.sentence());
}

void DialogWindow::deletePreset()
{
    const QueueName preset = job().source().queue;
    AlertContent question;
    question.style = AlertStyle::Warning;
    question.text = tr("Delete the preset \"%1\"?").arg(displayText(preset.instance));
    question.buttons = {tr("Delete"), tr("Keep")};
    question.defaultButton = kKeep;
    if (ask(question) == kKeep || m_isEnding)
        return;
    const Result<> deleted = ::deletePreset(preset);
    if (deleted)
        startFrom({}, {});
    else
        tell(NoticeBar::Kind::Error, deleted.sentence());
}

void DialogWindow::showHiddenAlerts()
{
    const Bundle *bundle = job().session() ? job().session()->bundle() : nullptr;
    if (!bundle || hiddenAlerts(*bundle).isEmpty()) {
        tell(NoticeBar::Kind::Information, tr("No warnings are hidden: all are shown."));
        return;
    }
    HiddenAlertsDialog(*bundle, this).exec();
}
