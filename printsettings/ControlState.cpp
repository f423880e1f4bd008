#include "panel/PopUpTag.h"
#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/toolkit/PopUpButton.h"
#include "printsettings/rules/DefaultChoices.h"
#include "printsettings/rules/MediaQuality.h"

using namespace Qt::StringLiterals;

namespace {

// The view gives it to the quality pop-up alone.

void setItemsEnabled(PopUpButton &popup, const QStringList &choices, bool enabled)
{
    for (const QString &choice : choices)
        popup.setItemEnabled(popup.indexOfRepresentedObject(choice), enabled);
}

// The titles are kept in the view's dictionary, since the pop-up loses them with its items.
void rebuildQualities(PopUpButton &popup, const QStringList &qualities,
                      const ObservableDictionary *titles)
{
    std::vector<PopUpButton::Item> items;
    for (const QString &quality : qualities) {
        const QVariant title = titles ? titles->value(quality) : QVariant();
        if (title.isValid())
            items.push_back({title.toString(), quality});
    }
    popup.setItems(items);
}

bool isSelectedItemEnabled(const PopUpButton &popup)
{
    return popup.isItemEnabled(popup.currentIndex());
}

} // namespace

QString VKInkPrintSetting14PDE::selectedMediaType() const
{
    return mediaTypePopup ? mediaTypePopup->selectedObject() : QString();
}

QString VKInkPrintSetting14PDE::selectedQuality() const
{
    return resolutionPopup ? resolutionPopup->selectedObject() : QString();
}

void VKInkPrintSetting14PDE::changeState(PopUpButton *popup, const QStringList &choices,
                                         bool enable, bool applyDefault)
{
    if (!popup)
        return;
    if (enable && tagOf(popup) == kTagTitlesInContent)
        rebuildQualities(*popup, choices, effectContent);
    else
        setItemsEnabled(*popup, choices, enable);
    if (!applyDefault) {
        showQualitiesAfterDisc();
        if (isSelectedItemEnabled(*popup))
            return;
    }
    // With applyDefault the default replaces a valid selection too. It is selected even where it is
    // disabled itself: no other item is looked for.
    selectDefaultItem(*popup);
}

// Qualities of a disc that are still shown on another paper make room for the medium's own.
void VKInkPrintSetting14PDE::showQualitiesAfterDisc()
{
    const QString mediaType = selectedMediaType();
    if (!isLeftFromDisc(selectedQuality(), mediaType, hasFlag(DiscPaper)))
        return;
    setFlag(SlowDryingUnavailable, false);
    showQualities(mediaType);
}

void VKInkPrintSetting14PDE::showQualities(const QString &mediaType)
{
    const QStringList qualities = allowedQuality(mediaType);
    if (!resolutionPopup)
        return;
    rebuildQualities(*resolutionPopup, qualities, effectContent);
    resolutionPopup->selectObject(defaultQualityForMediaType(mediaType));
}

void VKInkPrintSetting14PDE::selectDefaultItem(PopUpButton &popup)
{
    const RuledPopUp ruled = ruledPopUp(popup);
    const QString choice =
        defaultChoice(ruled, {selectedMediaType(), paperName, hasFlag(DiscPaper)});
    if (choice.isNull())
        return;
    if (ruled == RuledPopUp::Medium && hasFlag(DiscPaper))
        showQualities(choice);
    popup.selectObject(choice);
}

RuledPopUp VKInkPrintSetting14PDE::ruledPopUp(const PopUpButton &popup) const
{
    if (&popup == mediaTypePopup)
        return RuledPopUp::Medium;
    if (&popup == resolutionPopup)
        return RuledPopUp::Quality;
    return &popup == paperFeedPopup ? RuledPopUp::PaperFeed : RuledPopUp::Other;
}
