#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/rules/ControlStates.h"
#include "printsettings/rules/DiscMedia.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>

namespace {

void apply(BoxState state, QCheckBox *box)
{
    if (!box || state == BoxState::Usable)
        return;
    if (state == BoxState::DisabledAndOff)
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
    changeMedia(shownMedia(hasFlag(DiscPaper), hasFlag(BorderlessPaper)));
    const ControlStates states = controlStates(controlFacts());
    apply(states.direction, biDirButton);
    apply(states.slowDrying, slowDryButton);
    apply(states.mirror, mirrorButton);
    if (jpegLabel)
        setTextColor(jpegLabel, states.jpeg ? controlTextColor() : disabledControlTextColor());
    if (jpegPopup)
        jpegPopup->setEnabled(states.jpeg);
}

ControlFacts VKInkPrintSetting14PDE::controlFacts() const
{
    ControlFacts facts;
    facts.mediaType = selectedMediaType();
    facts.quality = selectedQuality();
    facts.directionLeftAlone = hasFlag(BiDirLeftAlone);
    facts.slowDryingUnavailable = hasFlag(SlowDryingUnavailable);
    facts.transparenciesPending = hasFlag(TransparenciesMedium);
    facts.jpegUnavailable = hasFlag(JpegUnavailable);
    return facts;
}
