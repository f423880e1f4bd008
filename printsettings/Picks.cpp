#include "printsettings/VKInkPrintSetting14PDE.h"

#include "printsettings/rules/PrintDirection.h"
#include "printsettings/rules/PrintWarnings.h"

#include <QtWidgets/QWidget>

using namespace Qt::StringLiterals;

namespace {
constexpr auto kBestAlert = "Best Alert"; // its text and its key in the alert memory
}

void VKInkPrintSetting14PDE::requestNewOutputBin(QWidget *control)
{
    VKPrintQualityPDE::requestNewOutputBin(control);
    const QString keyword = determineKey(control);
    if (keyword == "VKMediaType"_L1) {
        checkUIStateWithMediaType(true);
        getUIValues();
    } else if (keyword == "VKResolution"_L1) {
        applyQualityPick();
    } else if (keyword == "VKInputSlot"_L1) {
        checkStateWithPaperFeed();
    } else if (keyword == "VKMonoColor"_L1) {
        canSelectColorMode();
    } else if (keyword == "VKColorPaperThick"_L1) {
        applyThicknessPick();
    }
}

void VKInkPrintSetting14PDE::applyQualityPick()
{
    if (warnsOfBestQuality(pendingValue(u"VKResolution"_s), pendingValue(u"VKMediaType"_s)) &&
        shouldShowAlert(QString::fromLatin1(kBestAlert)))
        beginBestAlert();
    canSelectJpegPrint();
}

void VKInkPrintSetting14PDE::beginBestAlert()
{
    AlertContent content =
        noticeAlert(AlertStyle::Informational, localized(kBestAlert), localized("Highest Alert2"));
    content.suppression = true;
    content.suppressionTitle = localized("Suppression");
    beginAlertSheet(content, lifetime(), [this](const AlertResult &result) {
        alertDidEnd(result, result.button, QString::fromLatin1(kBestAlert));
    });
}

void VKInkPrintSetting14PDE::applyThicknessPick()
{
    const QString direction =
        directionAfterThickness(paperSizeIsCustomEnv(), pendingValue(u"VKMediaType"_s));
    if (!direction.isNull())
        setAndMarkValue(direction, u"VKBiDir"_s);
    if (!popupInited)
        return;
    checkUIConstraints();
    updateUIforKey(u"VKBiDir"_s);
}

void VKInkPrintSetting14PDE::updateUIforKey(const QString &keyword)
{
    VKPrintQualityPDE::updateUIforKey(keyword);
    if (keyword == "VKMediaType"_L1)
        checkUIStateWithMediaType(false);
    else if (keyword == "VKResolution"_L1)
        canSelectJpegPrint();
    else if (keyword == "VKInputSlot"_L1)
        checkStateWithPaperFeed();
    else if (keyword == "VKMonoColor"_L1)
        canSelectColorMode();
}

void VKInkPrintSetting14PDE::revertUI(QWidget *control, const QString &keyword)
{
    VKPrintQualityPDE::revertUI(control, keyword);
    if (keyword == "VKMonoColor"_L1) {
        canSelectColorMode();
    } else if (keyword == "VKMediaType"_L1) {
        checkUIStateWithMediaType(true);
        setDefaultQuality(pendingValue(u"VKMediaType"_s));
    }
}
