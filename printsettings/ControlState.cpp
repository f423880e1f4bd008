#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/toolkit/PopUpButton.h"

using namespace Qt::StringLiterals;

namespace {

// The view gives it to the quality pop-up alone.
constexpr int kTagRebuilt = 5;

bool isSelectedItemEnabled(const PopUpButton &popup)
{
    return popup.isItemEnabled(popup.currentIndex());
}

} // namespace

QString VKInkPrintSetting14PDE::selectedMediaType() const
{
    return mediaTypePopup ? mediaTypePopup->selectedObject() : QString();
}

void VKInkPrintSetting14PDE::changeState(PopUpButton *popup, const QStringList &choices,
                                         bool enable, bool applyDefault)
{
    if (!popup)
        return;
    if (enable && tagOf(popup) == kTagRebuilt)
        rebuildQualities(*popup, choices);
    else
        setItemsEnabled(*popup, choices, enable);
    if (!applyDefault) {
        if (!hasFlag(DiscPaper))
            showQualitiesAfterDisc();
        if (isSelectedItemEnabled(*popup))
            return;
    }
    // Wanted, the default takes the place of a valid selection too, and is selected even where it
    // is disabled itself: no other item is looked for.
    selectDefaultItem(*popup);
}

void VKInkPrintSetting14PDE::setItemsEnabled(PopUpButton &popup, const QStringList &choices,
                                             bool enabled)
{
    for (const QString &choice : choices)
        popup.setItemEnabled(popup.indexOfRepresentedObject(choice), enabled);
}

void VKInkPrintSetting14PDE::rebuildQualities(PopUpButton &popup, const QStringList &qualities)
{
    std::vector<PopUpButton::Item> items;
    for (const QString &quality : qualities) {
        const QVariant title = effectContent ? effectContent->value(quality) : QVariant();
        if (title.isValid())
            items.push_back({title.toString(), quality});
    }
    popup.setItems(items);
}

// Qualities of a disc that are still shown on another paper make room for the medium's own.
void VKInkPrintSetting14PDE::showQualitiesAfterDisc()
{
    if (!resolutionPopup)
        return;
    const QString mediaType = selectedMediaType();
    const QString quality = resolutionPopup->selectedObject();
    const bool discQuality = quality == "DiscNormal"_L1 || quality == "DiscSlow"_L1;
    if (mediaType == "PrintableDisc"_L1 || !discQuality)
        return;
    setFlag(SlowDryingUnavailable, false);
    rebuildQualities(*resolutionPopup, allowedQuality(mediaType));
    resolutionPopup->selectObject(defaultQualityForMediaType(mediaType));
}

void VKInkPrintSetting14PDE::selectDefaultItem(PopUpButton &popup)
{
    if (&popup == mediaTypePopup)
        selectDefaultMedium();
    else if (&popup == resolutionPopup)
        popup.selectObject(defaultQualityForMediaType(selectedMediaType()));
    else if (&popup == paperFeedPopup)
        popup.selectObject(u"Tray1"_s);
}

void VKInkPrintSetting14PDE::selectDefaultMedium()
{
    if (!hasFlag(DiscPaper)) {
        mediaTypePopup->selectObject(u"Plain"_s);
        return;
    }
    const QString disc = u"PrintableDisc"_s;
    const QStringList qualities = allowedQuality(disc);
    if (resolutionPopup) {
        rebuildQualities(*resolutionPopup, qualities);
        resolutionPopup->selectObject(defaultQualityForMediaType(disc));
    }
    mediaTypePopup->selectObject(disc);
}
