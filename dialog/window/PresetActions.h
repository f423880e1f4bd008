#pragma once

#include "dialog/printing/StartingSettings.h"
#include "dialog/window/NoticeBar.h"

#include <QtCore/QObject>

class PresetsRow;
class PrintJob;
class QWidget;

/// What a person does with the presets of the job's printer: the window opens the printer from one,
/// this does the rest.
class PresetActions : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive it.
    PresetActions(PrintJob &job, PresetsRow &row, QWidget &window);

    /// Shows what the printer's settings may start from, and what they have started from. Settings
    /// can be saved where the printer is open.
    void show(bool isOpen);

    /// Looks at a preset that was saved just now, and opened: what panels have changed since does
    /// not go together with the rest, and is saved as they have it. Where it could not be opened,
    /// nothing is to be looked at.
    void confirm(bool isOpen);

Q_SIGNALS:
    /// The printer is to be opened again with other settings; `preset` is null for none.
    void startWanted(const QString &preset, const StartingSettings &start);

    void told(NoticeBar::Kind kind, const QString &sentence);

private:
    void save();
    void rename();
    void remove();
    void showHiddenAlerts();

    PrintJob &m_job;
    PresetsRow &m_row;
    QWidget &m_window;
    bool m_isNew = false; ///< the one that is being opened
};
