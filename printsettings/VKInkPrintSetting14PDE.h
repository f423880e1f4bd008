#pragma once

#include "panel/VKPrintQualityPDE.h"
#include "printsettings/AdvancedSection.h"
#include "printsettings/AlertWindows.h"

#include <memory>
#include <optional>
#include <vector>

class JobPaper;
class QCheckBox;
class QLabel;
enum class RuledPopUp;
struct AdvancedGroup;
struct ControlFacts;
struct KeywordDefault;
struct MediaChange;
struct MediumEffects;

/// The Print Settings panel: medium, quality, paper feed, colour or mono, thickness, two-sided
/// printing and the advanced options, and the rules that tie them together.
///
/// A person picks a medium:
///   1. the base offers it to the dialog, records it and refreshes the pop-up, then commits what
///      every control shows;
///   2. checkUIStateWithMediaType() rebuilds the qualities, selects the medium's default, sets the
///      boxes that depend on the medium, and tells the Color Settings panel about colour matching;
///   3. getUIValues() commits whatever that has changed.
///
/// The decisions themselves are tables and pure functions in a room of their own (rules/), on plain
/// values; this class gathers the facts and applies what was decided to the pending values and the
/// controls. Every operation works without a view: then the pending values and the PPD change, and
/// no control does.
///
/// The order of the steps within each operation is what the dialog and the other panel see (choices
/// offered, notifications posted); it is part of the interface.
class VKInkPrintSetting14PDE : public VKPrintQualityPDE
{
public:
    VKInkPrintSetting14PDE();
    ~VKInkPrintSetting14PDE() override;

    // --- Lifecycle and the panel protocol ------------------------------------------------------

    /// False when the base cannot be created; nothing else has happened then.
    bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback) override;
    QString panelName() const override;
    void willShow() override;
    void PPDOptionKeyValueDidChange(const QString &keyword, const QString &choice) override;
    /// Swaps plain paper and its two-sided form, which the pop-up does not list. A panel that was
    /// never shown sets it whatever the medium is, and with it the quality "PlainNormal".
    bool saveValuesAndReturnError(QString *error) override;
    /// Raises at most one alert, and vetoes the job when it is cancelled.
    bool shouldPrint() override;
    /// The base's summary with the printer's model as its first line.
    QVariantMap summaryInfo() override;

    void requestNewOutputBin(QWidget *control) override;
    void updateUIforKey(const QString &keyword) override;
    void revertUI(QWidget *control, const QString &keyword) override;

    /// Whether the choice "FAX" of `VKOutput` is marked.
    bool checkIfOutputToFax() const;
    /// The user's first preferred language, such as "ja".
    QString firstLanguageSetting() const;

    // --- Keywords, controls, labels ------------------------------------------------------------

    QString determineKey(QWidget *control) const override;
    QWidget *determineUI(const QString &keyword) const override;
    std::optional<QStringList> availablePPDOptionKeys() const override;
    /// Brings the bit NewerModelClass up to date.
    void checkModelName() override;
    /// The string with "_on" behind it when the control is enabled and ticked, else with "_off".
    QString addOnOffSuffix(QWidget *control, const QString &text) const;

    // --- Rules of the media --------------------------------------------------------------------

    /// The qualities for the medium, in order. A medium that the paper does not take is replaced,
    /// with its default quality; the answer is for the medium asked about all the same.
    QStringList allowedQuality(const QString &mediaType);
    QString defaultQualityForMediaType(const QString &mediaType) const;
    void setDefaultQuality(const QString &mediaType);
    void setDefaults() override;
    /// Brings the bit MonoColorMode up to date and tells the Color Settings panel.
    void canSelectColorMode();
    void canSelectJpegPrint();
    /// Brings the controls in line with the selected medium, and applies the medium's defaults too
    /// when asked to, as after a pick.
    void checkUIStateWithMediaType(bool applyDefaults);
    void checkStateWithPaperFeed();
    /// Whether the paper is a custom size with the thickness of envelopes.
    bool paperSizeIsCustomEnv();
    void changeResolutionLetterB() override;

    // --- Control states and constraints --------------------------------------------------------

    /// Enables or disables the listed items of the pop-up and, where its selection must move (at
    /// once with `applyDefault`, else when the selected item is not enabled), selects its default.
    /// Enabling a list on the quality pop-up leaves exactly the listed items.
    void changeState(PopUpButton *popup, const QStringList &choices, bool enable,
                     bool applyDefault);
    void checkConstraints() override;
    void checkUIConstraints() override;

    // --- Page setup ----------------------------------------------------------------------------

    /// Takes the paper of the page setup. False when it is the one before, or cannot be read.
    bool readPageSetup();
    void checkPageSizeChange(const Notification &notification);
    /// Brings the bit DuplexOn up to date.
    void checkDuplex();
    void checkDuplexChange(const Notification &notification);

    // --- Alerts; each check answers whether the job may be printed -----------------------------

    bool checkCustomPaperSizeAlert();
    bool checkShouldShowDiscAlert();
    bool checkShouldShowEnvelopeAlert();

    /// For other callers; the panel's own flow does not run the following three. The duplex check
    /// is meant to be asked while two-sided printing is on: asked without, it vetoes.
    bool checkShouldShowDuplexAlert();
    /// Also writes the page's orientation into the ticket.
    bool checkPaperAndShowOrientationAlert();
    /// Prepares an alert window about a paper. `kind` "Normal Paper" names its own buttons too;
    /// `orientationMessage` is the key of the text, `alertImage` the name of a picture resource.
    void readyToShowPaperAlertWithKind(const QString &kind, const QString &orientationMessage,
                                       QWidget *alertWindow, ImageView *alertView,
                                       const QString &alertImage, QLabel *alertMessageLabel);

    void readyToShowEnvelopeAlert();
    /// Shows the window in front of the dialog until one of its buttons is pressed: 1 for OK, 0 for
    /// Cancel, closing and a window that is destroyed. With an alert key, OK stores whether the
    /// alert is to be shown again: not where the outlet `suppressionButton` is ticked.
    int showDialog(QWidget *window, const QString &alertKey);
    void dialogOkDidClick(QWidget *sender);
    void dialogCancelDidClick(QWidget *sender);

    // --- Advanced options ----------------------------------------------------------------------

    /// Builds the panel the first time; later calls do nothing.
    void initializePopup() override;
    /// Fills and sizes the list of advanced options. The parts are hidden when there is no list.
    void initializeAdvOption(const QList<QWidget *> &parts);
    void addAdvOption(const QString &label, const QString &id);
    double advancedHeight() const override;

    // --- Controls as the dialog uses them, and inspection --------------------------------------

    QString shortName() const override;
    /// Those of the alert windows too, once they are loaded.
    QHash<QString, QWidget *> outlets() const override;
    QString inspectedClassName() const override;
    std::optional<Rows> inspectedRows() const override;

protected:
    void connectView(ViewConnections &connections) override;

private:
    /// Whether the user's language has a control for the keyword.
    bool isOffered(const QString &keyword) const;

    void applyQualityPick();
    void applyThicknessPick();
    void beginBestAlert();

    void restoreDefault(const QString &keyword);
    void applyDefault(const QString &keyword, const KeywordDefault &decided);
    void applySlowDrying(const MediumEffects &effects, bool applyDefaults);
    void applyQualities(const QString &mediaType, bool applyDefaults);
    void postNaturalColorMatching(bool natural, bool applyDefaults);

    QString selectedMediaType() const;
    QString selectedQuality() const;
    void showQualitiesAfterDisc();
    void showQualities(const QString &mediaType);
    void selectDefaultItem(PopUpButton &popup);
    RuledPopUp ruledPopUp(const PopUpButton &popup) const;

    void constrainQuality();
    void constrainBorderless();
    void constrainBiDir();
    void changeMedia(const std::vector<MediaChange> &changes);
    ControlFacts controlFacts() const;

    JobPaper jobPaper() const;
    QString pageSetupPaperName();
    void trackDisc(const QString &name);
    QString applyPaperThickness();
    void applyPaperBiDir();
    void followPageSize();
    void setPlainDuplex();

    /// Connects the outlets of the alert windows, if the panel's view is loaded.
    void loadAlertWindows();
    bool confirmEnvelope();
    bool refuseUnsupportedPaper(const AlertContent &alert);
    bool checkOrientationBySize();
    /// The path of the bundle's picture; null without one.
    QString picturePath(const QString &name) const;

    void addGroup(const AdvancedGroup &group);
    /// None where the group has no text, and so no row.
    std::optional<QString> groupLabel(const AdvancedGroup &group) const;

    // Of the table's controls (PrintControls.h) those that the rules reach for by themselves.
    PopUpButton *resolutionPopup = nullptr;
    PopUpButton *mediaTypePopup = nullptr;
    PopUpButton *paperThickPopup = nullptr;
    PopUpButton *paperFeedPopup = nullptr;
    PopUpButton *jpegPopup = nullptr;
    QCheckBox *slowDryButton = nullptr;
    QCheckBox *biDirButton = nullptr;
    QCheckBox *mirrorButton = nullptr;
    QLabel *jpegLabel = nullptr;

    AdvancedSection m_advanced;
    AlertWindows m_alertWindows;
};
