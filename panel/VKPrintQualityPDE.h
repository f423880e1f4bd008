#pragma once

#include "panel/ImageModeFlag.h"
#include "panel/KeywordControls.h"
#include "platform/foundation/ObservableDictionary.h"
#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPanelControls.h"
#include "platform/pde/PDEPanelInspection.h"
#include "platform/pde/PDEPluginCallback.h"
#include "platform/toolkit/Alert.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtCore/QObject>
#include <QtCore/QSizeF>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

class Bundle;
class ImageView;
class PopUpButton;
class QAbstractButton;
class RadioMatrix;
struct Notification;

/// The panel that a PPD drives: the base of both panels.
///
/// It keeps the PPD keywords that the panel manages (`PPDKeys`), the pending choice of each
/// (`outputBin`), and the one road by which a choice gets there: it is offered to the dialog, which
/// marks it in the PPD, and is recorded only when the dialog has accepted it.
///
/// It is a template. A panel class gives it the table of its controls (KeywordControls.h) and
/// supplies the rules; the base supplies the loops. A person picks a medium:
///   1. requestNewOutputBin() gets the control, finds its keyword, and offers the choice;
///   2. accepted, it is recorded and its control refreshed; refused, the control is put back;
///   3. saveAllValues() lets checkUIConstraints() adjust the controls, then reads every control
///      back and commits what differs.
///
/// Construct a panel, then call initWithCallback(): it calls operations of the panel class, which a
/// constructor cannot. Everything happens on the main thread. Nothing here fails loudly: keywords
/// that the PPD lacks, controls that the view lacks and names that a pop-up lacks are passed over.
class VKPrintQualityPDE : public PDEPanel, public PDEPanelControls, public PDEPanelInspection
{
public:
    /// Without a table the panel class answers determineKey(), determineUI() and determineLabel()
    /// itself.
    explicit VKPrintQualityPDE(std::span<const KeywordControl> controls = {});
    ~VKPrintQualityPDE() override;
    VKPrintQualityPDE(const VKPrintQualityPDE &) = delete;
    VKPrintQualityPDE &operator=(const VKPrintQualityPDE &) = delete;

    // --- Creation ------------------------------------------------------------------------------

    /// Takes the dialog's callback object and its PPD, checks the model, reads the marked choices
    /// and applies the constraints. False when the dialog cannot mark choices: the panel then keeps
    /// nothing of the dialog's and must be dropped.
    virtual bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback);

    /// Takes the keywords that the PPD has, in their order. No list: nothing changes.
    void setPPDKeys(const std::optional<QStringList> &keywords);

    // --- The panel protocol --------------------------------------------------------------------

    void willShow() override;
    bool shouldHide() override;
    bool saveValuesAndReturnError(QString *error) override;
    bool restoreValuesAndReturnError(QString *error) override;
    std::optional<QStringList> supportedPPDOptionKeys() const override;
    void PPDOptionKeyValueDidChange(const QString &keyword, const QString &choice) override;
    QWidget *panelView() override;
    QString panelKind() const override;
    QVariantMap summaryInfo() override;
    bool shouldShowHelp() override;
    bool shouldPrint() override;

    // --- Values --------------------------------------------------------------------------------

    /// The panel's resource name: it names the view resource, the help book and the panel's kind.
    QString thePDEName() const { return m_thePDEName; }
    void setThePDEName(const QString &name) { m_thePDEName = name; }

    /// The pending values: PPD keyword to choice name. Setting them replaces all.
    const QVariantMap &outputBin() const { return m_outputBin; }
    void setOutputBin(const QVariantMap &values) { m_outputBin = values; }

    /// A bit set of ImageModeFlag.
    std::int32_t imageModeFlag() const { return m_imageModeFlag; }

    /// Offers a choice of the program's own to the dialog. True when it was accepted and recorded;
    /// false when the keyword is null, the choice is pending already (the dialog is not asked), or
    /// the dialog refused. No control is refreshed.
    bool setAndMarkValue(const QString &value, const QString &keyword);

    /// The action of every PPD-driven control. A null sender has no keyword: then, as for a control
    /// that shows no choice, only saveAllValues() runs.
    virtual void requestNewOutputBin(QWidget *control);

    /// Puts the control back to the pending value after the dialog has refused a pick.
    virtual void revertUI(QWidget *control, const QString &keyword);

    /// Once the controls are built: reads them back and keeps the fold state in the ticket.
    virtual void saveAllValues();

    /// Applies the constraints to the controls, then commits what every control shows.
    void getUIValues();

    // --- Controls ------------------------------------------------------------------------------

    /// Rebuilds the controls from the PPD, the advanced section folded.
    virtual void initializePopup();

    /// Refreshes every control, then applies the constraints to the controls.
    virtual void updateUI();

    /// Makes the keyword's control show the pending value.
    virtual void updateUIforKey(const QString &keyword);

    /// Shows the picture resource of this name ("tiff", else "pdf") in the view; hides the view
    /// when there is none that can be read. Nothing is loaded when the view shows it already.
    void changeImage(const QString &imageName, ImageView *view);

    /// Gives the panel's view another size (points) and tells the dialog: at once when its window
    /// is tall enough, else when the window has grown. A dialog that cannot be told keeps its view
    /// as it is.
    void setViewFrameSize(const QSizeF &size);

    void dialogDidExpand(const Notification &notification);

    /// Moves the views by `offset` points upwards. Null entries are passed over.
    void adjustUIPosition(double offset, const QList<QWidget *> &parts);

    /// Ends every registration of the panel on the notification centre.
    void removeNotificationObserver(const Notification &notification);

    // --- Help, alerts, saved state -------------------------------------------------------------

    /// Whether the panel's help book is there and could be registered.
    bool registerHelp();
    /// The folder of the help book: beside the folder that holds the plug-in bundle.
    QString helpBookPath() const;
    virtual QString helpBook() const;
    QString helpAnchor() const;
    /// The action of a help button.
    void showHelpFile(QWidget *sender);

    /// Whether the alert is to be shown: yes, unless the user has asked not to see it again.
    bool shouldShowAlert(const QString &alertKey) const;
    /// Remembers the answer of an alert with a suppression box, under its key.
    void alertDidEnd(const AlertResult &result, int returnCode, const QString &alertKey);

    /// Brings the bit FaxOutput up to date.
    void checkFax();
    /// Brings the bit VendorColorMatching up to date.
    void checkColorSync();

    /// The key of the advanced section's fold state.
    QString optionName() const;
    void saveOptionState();
    void restoreOptionState();

    // --- What a panel class supplies -----------------------------------------------------------

    // The first three are answered from the panel class's table.

    /// The keyword of a control; null without one, and for a null control.
    virtual QString determineKey(QWidget *control) const;
    /// The control of a keyword (a matrix, a pop-up button or a check box); null without one.
    virtual QWidget *determineUI(const QString &keyword) const;
    /// The label of a keyword; null without one.
    virtual QWidget *determineLabel(const QString &keyword) const;
    /// The keywords to summarise, in order.
    virtual std::optional<QStringList> availablePPDOptionKeys() const;
    /// Reads the printer's model and sets the model's bits.
    virtual void checkModelName() {}
    /// Sets default values before the marked choices are read.
    virtual void setDefaults() {}
    /// Applies the rules to the pending values.
    virtual void checkConstraints() {}
    /// Applies the rules to the controls. The base enables everything, or disables it for fax.
    virtual void checkUIConstraints();
    /// Flips the advanced section; the sender is the disclosure button, which has flipped already.
    virtual void toggleShowOption(QWidget *sender);
    /// What the advanced section adds to the view's height when it unfolds (points); the base has
    /// no such section.
    virtual double advancedHeight() const { return 0; }
    /// A rule of one model; the base has none.
    virtual void changeResolutionLetterB() {}

    // --- Controls, as the dialog uses them -----------------------------------------------------

    void *extension(QLatin1String identifier) override;
    QWidget *loadedView() const override { return m_panelView; }
    QHash<QString, QWidget *> outlets() const override;
    QWidget *controlOf(const QString &keyword) const override { return determineUI(keyword); }
    bool isTicked(const QString &keyword, const QString &choice) const override;
    QString disclosureName() const override;
    QAbstractButton *helpButton() const override;

    // --- Inspection ----------------------------------------------------------------------------

    std::int32_t inspectedFlags() const override { return m_imageModeFlag; }
    QString inspectedPaperName() const override { return paperName; }
    QVariantMap inspectedOutputBin() const override { return m_outputBin; }
    const ObservableDictionary *inspectedEffectContent() const override { return effectContent; }

protected:
    /// Names the outlets and actions that the view resource connects. A panel class adds its own.
    virtual void connectView(ViewConnections &connections);

    bool hasFlag(ImageModeFlag flag) const { return (m_imageModeFlag & flag) != 0; }
    void setFlag(ImageModeFlag flag, bool on);

    /// The button of the loaded view that sends the action; null without one.
    QAbstractButton *buttonSending(QLatin1String action) const;

    /// The pending choice; null when there is none (or a number).
    QString pendingValue(const QString &keyword) const;
    void recordPendingValue(const QString &keyword, const QVariant &value);

    /// `PPDKeys`; empty without a list.
    const QStringList &managedKeywords() const;

    /// Takes the keyword list that stands in the bundle's information under the key.
    void takeKeywordList(const QString &informationKey);

    /// Whether the panel manages the keyword.
    bool managesKeyword(const QString &keyword) const;

    /// The localised text of the key in the plug-in's string table.
    QString localized(const char *key) const;

    /// The dialog's ticket; null when it has none or does not offer one.
    PMPrintSettings *ticket() const;

    /// An alert with the localised button "OK".
    AlertContent noticeAlert(AlertStyle style, const QString &text,
                             const QString &informative) const;
    /// The alert that a paper outside the printer's range raises.
    AlertContent unsupportedPaperAlert() const;

    QObject *lifetime() { return &m_lifetime; }

    /// What a dialog's window needs around a panel's view, in points.
    static constexpr double kWindowMargin = 96.0;

    std::shared_ptr<PDEPluginCallback> pdePluginCallbackObject;
    std::optional<QStringList> PPDKeys;
    QString paperName;         ///< the current paper; null until a panel class sets it
    ppd_file_t *ppd = nullptr; ///< the dialog's
    std::shared_ptr<Bundle> pluginBundle;
    bool popupInited = false;                      ///< the controls have been filled from the PPD
    ObservableDictionary *effectContent = nullptr; ///< the view's; null before it is loaded
    QAbstractButton *optionButton = nullptr;       ///< the disclosure button of the view

private:
    void readMarkedChoices();
    void buildControl(const QString &keyword);
    void buildMatrix(RadioMatrix &matrix, const QString &keyword);
    void buildPopUp(PopUpButton &popup, const QString &keyword);
    void buildCheckBox(QAbstractButton &box, const QString &keyword);
    void titleLabel(const QString &keyword, const QString &text);
    void selectFallbackMedium(PopUpButton &popup, const QString &value);
    void commitControl(QWidget &control, const QString &keyword);
    QString summaryText(const QString &keyword) const;
    QString optionStateKey() const;

    KeywordControls m_keywordControls;
    QString m_thePDEName;
    QVariantMap m_outputBin;
    std::int32_t m_imageModeFlag = 0;
    QWidget *m_panelView = nullptr;
    std::unique_ptr<LoadedView> m_view;
    QObject m_lifetime; // what sheets that outlive the panel look for
};
