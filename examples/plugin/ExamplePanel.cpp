#include "ExamplePanel.h"

#include <platform/foundation/Bundle.h>
#include <platform/foundation/NotificationCenter.h>
#include <platform/pde/PDEExtension.h>
#include <platform/pde/PDESummary.h>
#include <platform/ppd/PPDText.h>
#include <platform/printmanager/PMNotifications.h>
#include <platform/printmanager/PMPageFormat.h>
#include <platform/toolkit/AccessibleName.h>
#include <platform/toolkit/Alert.h>
#include <platform/toolkit/PlainLabel.h>
#include <platform/toolkit/PlainText.h>
#include <platform/toolkit/PopUpButton.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kMedium = "ExMedium"_L1;
constexpr auto kSaveToner = "ExSaveToner"_L1;
constexpr auto kDarkness = "ExDarkness"_L1;                    // in the view's dictionary
constexpr auto kDarknessKey = "com.example.print.Darkness"_L1; // in the ticket

constexpr double kLongestCard = 300; // points
constexpr int kDarkest = 3;          // of the slider in the view

QString optionText(ppd_file_t *ppd, const QString &keyword)
{
    const ppd_option_t *option = findOption(ppd, keyword);
    return option ? ppdText(option->text) : QString();
}

} // namespace

bool ExamplePanel::canWorkWith(const PDEPluginCallback &dialog)
{
    return dialog.respondsTo(HostOperation::WillChangePPDOptionKeyValue) &&
           dialog.respondsTo(HostOperation::PrintSettings) &&
           dialog.respondsTo(HostOperation::PageFormat);
}

ExamplePanel::ExamplePanel(Bundle &bundle, const std::shared_ptr<PDEPluginCallback> &dialog)
    : m_bundle(bundle), m_dialog(dialog)
{
    NotificationCenter::defaultCenter().addObserver(
        this, [this](const Notification &) { followPaper(); }, kPMPaperDidChangeNotification,
        m_dialog.get());
}

ExamplePanel::~ExamplePanel()
{
    NotificationCenter::defaultCenter().removeObserver(this);
}

std::optional<QStringList> ExamplePanel::supportedPPDOptionKeys() const
{
    return QStringList{kMedium, kSaveToner};
}

QString ExamplePanel::panelName() const
{
    return m_bundle.localizedString(u"Paper and Toner"_s);
}

void *ExamplePanel::extension(QLatin1String identifier)
{
    return extensionAmong<PDEPanelControls>(this, identifier);
}

// --- The view ------------------------------------------------------------------------------------

QWidget *ExamplePanel::panelView()
{
    if (m_view)
        return m_root;
    ViewConnections connections;
    connections.outlet(u"examplePanel"_s, m_root);
    connections.outlet(u"mediumPopup"_s, m_medium);
    connections.outlet(u"saveTonerButton"_s, m_saveToner);
    connections.outlet(u"mediumLabel"_s, m_mediumLabel);
    connections.outlet(u"darknessLabel"_s, m_darknessLabel);
    connections.outlet(u"darknessSlider"_s, m_darkness);
    connections.action(u"pickMedium:"_s,
                       [this](QWidget *) { pick(kMedium, m_medium->selectedObject()); });
    connections.action(u"pickSaveToner:"_s, [this](QWidget *) {
        pick(kSaveToner, m_saveToner->isChecked() ? u"Yes"_s : u"No"_s);
    });
    connections.action(u"moveDarkness:"_s, [this](QWidget *) { keepDarkness(); });
    m_view = loadView(m_bundle.pathForResource(u"ExamplePanel"_s, u"ui"_s), connections);
    if (m_view)
        buildControls();
    return m_root;
}

void ExamplePanel::buildControls()
{
    std::vector<PopUpButton::Item> items;
    const ppd_option_t *medium = findOption(m_dialog->ppdFile(), kMedium);
    for (int index = 0; medium && index < medium->num_choices; ++index)
        items.push_back(
            {ppdText(medium->choices[index].text), ppdName(medium->choices[index].choice)});
    m_medium->setItems(items);
    setTitle(kMedium, *m_mediumLabel, *m_medium);
    setTitle(kDarkness, *m_darknessLabel, *m_darkness);
    setButtonTitle(m_saveToner, optionText(m_dialog->ppdFile(), kSaveToner));
}

void ExamplePanel::setTitle(const QString &keyword, QLabel &label, QWidget &control)
{
    const QString text = optionText(m_dialog->ppdFile(), keyword);
    setLabelText(&label, text + u':');
    giveAccessibleName(&control, text);
}

void ExamplePanel::willShow()
{
    showValues();
    followPaper();
}

void ExamplePanel::showValues()
{
    if (!m_view)
        return;
    m_medium->selectObject(markedChoice(m_dialog->ppdFile(), kMedium));
    m_saveToner->setChecked(isTicked(kSaveToner, markedChoice(m_dialog->ppdFile(), kSaveToner)));
    m_view->content()->setValue(kDarkness, darkness());
}

// --- The choices: the dialog marks them in the PPD -----------------------------------------------

void ExamplePanel::pick(const QString &keyword, const QString &choice)
{
    m_dialog->willChangePPDOptionKeyValue(keyword, choice);
    showValues(); // refused, the former choice still stands
}

bool ExamplePanel::restoreValuesAndReturnError(QString *)
{
    showValues();
    return true;
}

void ExamplePanel::PPDOptionKeyValueDidChange(const QString &, const QString &)
{
    showValues();
}

/// Cards are printed one by one from the rear: only small paper fits there.
void ExamplePanel::followPaper()
{
    const std::optional<PMPaper> paper = m_dialog->pageFormat()->paper;
    const bool takesCards = !paper || paper->height <= kLongestCard;
    if (m_medium)
        m_medium->setItemEnabled(m_medium->indexOfRepresentedObject(u"Card"_s), takesCards);
    if (!takesCards && markedChoice(m_dialog->ppdFile(), kMedium) == "Card"_L1)
        pick(kMedium, u"Plain"_s);
}

// --- The darkness: a value of the ticket, which travels with the job -----------------------------

int ExamplePanel::darkness() const
{
    QVariant value;
    PMPrintSettingsGetValue(m_dialog->printSettings(), kDarknessKey, &value);
    return value.toInt();
}

void ExamplePanel::keepDarkness()
{
    const int chosen = m_view->content()->value(kDarkness).toInt();
    PMPrintSettingsSetValue(m_dialog->printSettings(), kDarknessKey, QString::number(chosen),
                            false);
}

bool ExamplePanel::saveValuesAndReturnError(QString *)
{
    return true; // nothing is pending: each value is kept when it is picked
}

// --- The job -------------------------------------------------------------------------------------

QVariantMap ExamplePanel::summaryInfo()
{
    QVariantMap summary;
    for (const QString &keyword : {QString(kMedium), QString(kSaveToner)}) {
        ppd_option_t *option = findOption(m_dialog->ppdFile(), keyword);
        if (const auto *choice = findChoice(option, markedChoice(m_dialog->ppdFile(), keyword)))
            appendSummaryLine(summary, ppdText(option->text), ppdText(choice->text));
    }
    appendSummaryLine(summary, optionText(m_dialog->ppdFile(), kDarkness),
                      QString::number(darkness()));
    return summary;
}

bool ExamplePanel::shouldPrint()
{
    if (darkness() < kDarkest || markedChoice(m_dialog->ppdFile(), kSaveToner) != "Yes"_L1)
        return true;
    AlertContent alert;
    alert.style = AlertStyle::Warning;
    alert.text = m_bundle.localizedString(u"Print darkest although toner is to be saved?"_s);
    alert.buttons = {m_bundle.localizedString(u"Print"_s), m_bundle.localizedString(u"Cancel"_s)};
    return runAlert(alert).button == 0;
}

// --- What scripts and -o use ---------------------------------------------------------------------

QHash<QString, QWidget *> ExamplePanel::outlets() const
{
    return m_view ? m_view->outlets() : QHash<QString, QWidget *>();
}

QWidget *ExamplePanel::controlOf(const QString &keyword) const
{
    if (keyword == kMedium)
        return m_medium;
    return keyword == kSaveToner ? m_saveToner : nullptr;
}

bool ExamplePanel::isTicked(const QString &, const QString &choice) const
{
    return choice == "Yes"_L1;
}
