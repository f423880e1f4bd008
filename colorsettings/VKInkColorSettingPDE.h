#pragma once

#include "panel/VKPrintQualityPDE.h"
#include "platform/imaging/CIContext.h"

#include <QtCore/QHash>

#include <array>
#include <memory>

class CIFilter;
class CIImage;
class NumberField;
class QLabel;
struct ColorJob;
struct PrintSettingChange;

/// The Color Settings panel: colour matching, halftone pattern, the enhancement switch, five
/// enhancement values from -20 to 20, and a picture that previews their effect.
///
/// What drives it:
///   1. the PPD: the base panel fills the matrix, the pop-up and the check box, and commits picks;
///   2. the Print Settings panel, through kPrintSettingNotification: colour mode and colour
///   matching
///      follow the medium;
///   3. the page setup: a job that is scaled to a printable disc takes natural colour matching;
///   4. the sliders and fields of the five values.
///
/// The five values are never marked in the PPD: they leave the panel as ticket values. They live in
/// three places: `effectContent` holds what the sliders show, `outputBin` (as integer numbers) what
/// was last read from or written to the ticket, and the ticket a decimal text.
///
/// Before the view is loaded there are no outlets and no `effectContent`: everything then works on
/// `outputBin` and the ticket alone, and nothing is drawn.
class VKInkColorSettingPDE : public VKPrintQualityPDE
{
public:
    VKInkColorSettingPDE();
    ~VKInkColorSettingPDE() override;

    // --- Creation and the panel protocol ---------------------------------------------------------

    /// The base panel's creation, then the panel's own: keywords, values, observers. When the base
    /// panel cannot be created nothing more is done, and the panel must be dropped.
    bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback) override;

    QString panelName() const override;
    void willShow() override;
    bool saveValuesAndReturnError(QString *error) override;
    QVariantMap summaryInfo() override;

    // --- What the base panel asks ----------------------------------------------------------------

    void initializePopup() override;
    void saveAllValues() override;
    void checkConstraints() override;
    void checkUIConstraints() override;
    double advancedHeight() const override;
    std::optional<QStringList> availablePPDOptionKeys() const override;
    QString helpBook() const override;

    /// The numeric field of an enhancement keyword; null for any other.
    QWidget *determineField(const QString &keyword) const;

    // --- Notifications ---------------------------------------------------------------------------

    /// The Print Settings panel has decided something (PrintSettingChange.h); without user
    /// information the ticket says what holds.
    void printSettingsNotified(const Notification &notification);

    /// The page setup has changed.
    void checkPageSizeChange(const Notification &notification);

    // --- Enhancement values ----------------------------------------------------------------------

    /// The first call gives the panel its enhancement keywords, the PPD's defaults and the two
    /// filters; every call shows the values of `outputBin` in the sliders.
    void setEffectDefaults();

    /// Reads the five values from the ticket, 0 for what is no number from -20 to 20, and shows
    /// them. Without a ticket nothing changes.
    void restoreEffectValues();

    /// Takes the five values from the sliders, cut toward zero, and writes them to the ticket.
    /// Without a ticket nothing changes.
    void saveEffectValues();

    /// The action of the sliders and fields: draws the picture anew when the value is a new one.
    void effectValueDidChange(QWidget *control);

    /// The action of the revert button: puts the values back to those of the last ticket read or
    /// write and switches enhancement off, without asking the dialog. The sender is ignored.
    void revertEffectDialog(QWidget *sender);

    // --- The picture -----------------------------------------------------------------------------

    /// The reference image that the preview starts from; null: none.
    std::shared_ptr<const CIImage> refImage() const;
    void setRefImage(const std::shared_ptr<const CIImage> &image);

    /// Takes the "tiff" resource of this name as the reference image. Without such a resource the
    /// image stays; a file that cannot be read gives none.
    void setRefImageWithName(const QString &name);

    /// The image with brightness and contrast changed, as the sliders say; the image itself while
    /// enhancement is off. `code`: 0 takes up brightness, 1 contrast, a negative one both. A single
    /// one also puts the whole number back into `effectContent`.
    std::shared_ptr<const CIImage>
    applyColorControlFilter(const std::shared_ptr<const CIImage> &image, int code);

    /// The image with the colour gains applied, as the sliders say; in mono its grey form; the
    /// image itself while enhancement is off. `code`: 0 takes up red, 1 green, 2 blue, a negative
    /// one all three. A single one also puts the whole number back into `effectContent`.
    std::shared_ptr<const CIImage>
    applyColorMatrixFilter(const std::shared_ptr<const CIImage> &image, int code);

    /// Draws the whole picture: brightness and contrast first, then the gains; grey for fax.
    void redrawEffectImage();

    /// The action of the view's size watch: draws once the dialog's window, at another height, has
    /// room for the panel. The sender is ignored.
    void updateImage(QWidget *sender);

    // --- Controls as the dialog uses them, and inspection ----------------------------------------

    QString shortName() const override;
    QAbstractButton *revertButton() const override;
    QString inspectedClassName() const override;
    bool inspectedHasPicture() const override { return true; }
    ImageView *inspectedPicture() const override { return effectImageView; }

protected:
    void connectView(ViewConnections &connections) override;

private:
    /// The label of an enhancement value; null for any other keyword.
    QLabel *effectLabel(const QString &keyword) const;
    void connectOutlets(ViewConnections &connections);
    void observeNotifications();

    void fitMatrix();
    void titleSection();
    void titleEffects();
    void nameControls();

    void setContent(const QString &key, const QVariant &value);
    long long contentInteger(const QString &key) const;
    bool isEnhancementShown() const;
    ColorJob job() const;
    void dimTexts();

    void followPrintSettings(const PrintSettingChange &change);
    void followTicket();

    void readEffectDefaults();
    void createFilters();

    void setColorControl(int code);
    void setGain(int color);
    std::shared_ptr<const CIImage> withColorControlChanged(int code);
    std::shared_ptr<const CIImage> withGainChanged(int color);
    std::shared_ptr<const CIImage> monochrome(const std::shared_ptr<const CIImage> &image) const;
    void drawEffect(const std::shared_ptr<const CIImage> &result);

    ImageView *effectImageView = nullptr;
    ImageView *colorModeImageView = nullptr;
    QLabel *optionLabel = nullptr;
    std::array<NumberField *, 5> m_effectFields{}; ///< in the order of kEffects

    QStringList PPDEffectKeys; ///< empty until the first setEffectDefaults()
    QString m_refImageName;    ///< the resource that is the reference image; null: m_refImage is
    std::shared_ptr<const CIImage> m_refImage;
    /// The resources that have been read, null for one that cannot be; by name.
    mutable QHash<QString, std::shared_ptr<const CIImage>> m_readPictures;
    std::unique_ptr<CIFilter> ccFilter;
    std::unique_ptr<CIFilter> cmFilter;
    CIContext m_context;
};
