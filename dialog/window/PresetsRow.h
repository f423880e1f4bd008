#pragma once

#include "dialog/job/PPDPresets.h"
#include "dialog/printing/StartingSettings.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

class PopUpButton;
class QAction;
class QLayout;
class QPushButton;
class QWidget;

/// What a printer's settings may start from, and what they started from.
struct PresetChoices
{
    StartingSettings start;
    QString preset;           ///< the one that is open; null: none
    bool hasUsual = false;    ///< the queue has settings of its own in lpoptions
    bool hasLastUsed = false; ///< and from the last time
    bool canSave = false;     ///< there is a queue to save presets for
    QStringList presets;      ///< the user's, by name
    QList<PPDPreset> ofPPD;   ///< the maker's
};

/// The pop-up of presets, and a menu for what can be done with them.
class PresetsRow : public QObject
{
    Q_OBJECT

public:
    /// Pop-up and button are children of the parent, as PrinterPopUp has it.
    explicit PresetsRow(QWidget *parent);

    /// Both in a row, which the caller owns.
    QLayout *newRow() const;

    void showChoices(const PresetChoices &choices);

    PopUpButton *popup() const { return m_popup; }
    QPushButton *menuButton() const { return m_menu; }

Q_SIGNALS:
    /// The user has picked what the settings are to start from; `preset` is null for none.
    void picked(const QString &preset, const StartingSettings &start);

    void saveWanted();
    void renameWanted();
    void deleteWanted();
    void hiddenAlertsWanted();

private:
    void pick(const QString &key);
    QAction *addAction(const QString &name, const QString &title);

    PopUpButton *m_popup;
    QPushButton *m_menu;
    QAction *m_save;
    QAction *m_rename;
    QAction *m_delete;
    QAction *m_defaults;
    QAction *m_remember;
    QAction *m_follow;
    QAction *m_alerts;
};
