#include "dialog/window/PresetsRow.h"

#include "dialog/printing/FollowPreference.h"
#include "dialog/printing/LastUsed.h"
#include "dialog/window/FlowLayout.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPresetLength = 30; // characters: a pop-up does not measure hundreds of texts

// What the items of the pop-up stand for; a preset's name follows the colon.
constexpr auto kPrinterItem = "printer"_L1;
constexpr auto kUsualItem = "usual"_L1;
constexpr auto kLastItem = "last"_L1;
constexpr auto kPresetItem = "preset:"_L1;
constexpr auto kMakersItem = "maker:"_L1;

QString itemOf(const PresetChoices &choices)
{
    using enum StartingSettings::Kind;
    if (!choices.preset.isNull())
        return kPresetItem + choices.preset;
    switch (choices.start.kind) {
    case LastUsed:
        return kLastItem;
    case OfPPD:
        return kMakersItem + choices.start.name;
    case Saved:
        return choices.hasUsual ? kUsualItem : kPrinterItem;
    case Printer:
        break;
    }
    return kPrinterItem;
}

} // namespace

PresetsRow::PresetsRow(QWidget *parent)
    : QObject(parent),
      m_popup(new PopUpButton(parent)),
      m_menu(new QPushButton(tr("Presets"), parent))
{
    m_popup->setObjectName(u"presetPopup"_s);
    m_popup->setMinimumContentsLength(kPresetLength);
    m_menu->setObjectName(u"presetMenuButton"_s);
    m_menu->setAutoDefault(false);
    m_menu->setMenu(new QMenu(m_menu));
    m_save = addAction(u"savePreset"_s, tr("Save as Preset…"));
    m_rename = addAction(u"renamePreset"_s, tr("Rename Preset…"));
    m_delete = addAction(u"deletePreset"_s, tr("Delete Preset…"));
    m_menu->menu()->addSeparator();
    m_defaults = addAction(u"printerDefaults"_s, tr("Back to the Printer's Defaults"));
    m_remember = addAction(u"rememberLastUsed"_s, tr("Start with the Settings Used Last"));
    m_follow = addAction(u"followJobs"_s, tr("Follow the Job After Printing"));
    for (QAction *action : {m_remember, m_follow})
        action->setCheckable(true);
    m_menu->menu()->addSeparator();
    m_alerts = addAction(u"hiddenAlerts"_s, tr("Hidden Warnings…"));
    connect(m_popup, &QComboBox::activated, this, [this] { pick(m_popup->selectedObject()); });
    connect(m_save, &QAction::triggered, this, &PresetsRow::saveWanted);
    connect(m_rename, &QAction::triggered, this, &PresetsRow::renameWanted);
    connect(m_delete, &QAction::triggered, this, &PresetsRow::deleteWanted);
    connect(m_defaults, &QAction::triggered, this, [this] { pick(kPrinterItem); });
    connect(m_remember, &QAction::triggered, this, setRemembersLastUsed);
    connect(m_alerts, &QAction::triggered, this, &PresetsRow::hiddenAlertsWanted);
    connect(m_follow, &QAction::triggered, this, setFollowsJobs);
    // Another dialog may have changed them.
    connect(m_menu->menu(), &QMenu::aboutToShow, this, [this] {
        m_remember->setChecked(remembersLastUsed());
        m_follow->setChecked(followsJobs());
    });
    showChoices({});
}

QLayout *PresetsRow::newRow() const
{
    auto *row = new FlowLayout;
    row->addWidget(m_popup);
    row->addWidget(m_menu);
    return row;
}

QAction *PresetsRow::addAction(const QString &name, const QString &title)
{
    QAction *action = m_menu->menu()->addAction(title);
    action->setObjectName(name);
    action->setParent(this);
    return action;
}

void PresetsRow::showChoices(const PresetChoices &choices)
{
    std::vector<PopUpButton::Item> items{{tr("Printer's Defaults"), kPrinterItem}};
    if (choices.hasUsual)
        items.push_back({tr("Usual Settings"), kUsualItem});
    if (choices.hasLastUsed)
        items.push_back({tr("Settings Used Last"), kLastItem});
    for (const QString &preset : choices.presets)
        items.push_back({displayText(preset), kPresetItem + preset});
    for (const PPDPreset &preset : choices.ofPPD)
        items.push_back(
            {tr("%1 (from the printer's maker)").arg(preset.text), kMakersItem + preset.name});
    m_popup->setItems(items);
    m_popup->selectObject(itemOf(choices));
    m_save->setEnabled(choices.canSave);
    m_rename->setEnabled(!choices.preset.isNull());
    m_delete->setEnabled(!choices.preset.isNull());
}

void PresetsRow::pick(const QString &key)
{
    using enum StartingSettings::Kind;
    if (key.startsWith(kPresetItem))
        Q_EMIT picked(key.mid(kPresetItem.size()), {Saved, {}});
    else if (key.startsWith(kMakersItem))
        Q_EMIT picked({}, {OfPPD, key.mid(kMakersItem.size())});
    else if (key == kUsualItem)
        Q_EMIT picked({}, {Saved, {}});
    else if (key == kLastItem)
        Q_EMIT picked({}, {LastUsed, {}});
    else
        Q_EMIT picked({}, {Printer, {}});
}
