#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/DiscMedia.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

bool isSlowQuality(const QString &quality)
{
    return quality == "Photo"_L1 || quality == "Best"_L1;
}

bool isOneWayMedium(const QString &mediaType)
{
    return mediaType == "PrintableDisc"_L1 || mediaType == "GlossyPrintableDisc"_L1 ||
           mediaType == "Inkjet"_L1 || mediaType == "VelkaroQM41Matte"_L1 ||
           mediaType == "Transparencies"_L1;
}

void disable(QWidget *control)
{
    if (control)
        control->setEnabled(false);
}

void turnOff(QCheckBox *box)
{
    if (!box)
        return;
    box->setChecked(false);
    box->setEnabled(false);
}

} // namespace

// The boxes are disabled here and never enabled: the base has just enabled everything.
void VKInkPrintSetting14PDE::checkUIConstraints()
{
    VKPrintQualityPDE::checkUIConstraints();
    if (hasFlag(FaxOutput))
        return;
    const bool transparencies = !hasFlag(BorderlessPaper) && !hasFlag(DiscPaper);
    changeState(mediaTypePopup, {u"Transparencies"_s}, transparencies, false);
    showDiscMedia();
    disableUnavailableControls();
    if (resolutionPopup && isSlowQuality(resolutionPopup->selectedObject()))
        turnOff(biDirButton);
    if (isOneWayMedium(selectedMediaType()))
        turnOff(biDirButton);
}

// Other media are not enabled again here: checkConstraints() does that.
void VKInkPrintSetting14PDE::showDiscMedia()
{
    changeState(mediaTypePopup, shownDiscMedia(), hasFlag(DiscPaper), false);
    if (hasFlag(DiscPaper))
        changeState(mediaTypePopup, shownOtherMedia(), false, false);
}

void VKInkPrintSetting14PDE::disableUnavailableControls()
{
    if (hasFlag(BiDirLeftAlone))
        disable(biDirButton);
    if (hasFlag(SlowDryingUnavailable))
        turnOff(slowDryButton);
    if (hasFlag(TransparenciesMedium))
        disable(mirrorButton);
    const bool jpeg = !hasFlag(JpegUnavailable);
    if (jpegLabel)
        setTextColor(jpegLabel, jpeg ? controlTextColor() : disabledControlTextColor());
    if (jpegPopup)
        jpegPopup->setEnabled(jpeg);
}
