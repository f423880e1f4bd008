#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/PreferredLanguages.h"
#include "platform/pde/PPDText.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsettings/rules/ModelClass.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The box for the dedicated media is for the Japanese market alone.
constexpr auto kDedicatedMedia = "VKVertLineAlignDedicated"_L1;
constexpr auto kDedicatedMediaLanguage = "ja"_L1;

} // namespace

// Mirror printing has two keywords and one box: both lead to the box, and the box leads back to the
// one that the printer has.
const std::vector<VKInkPrintSetting14PDE::KeywordRow> &VKInkPrintSetting14PDE::keywordRows() const
{
    if (!keywordRows_.empty() || !effectContent)
        return keywordRows_;
    keywordRows_ = {
        {"VKResolution"_L1, resolutionPopup, resolutionLabel},
        {"VKMediaType"_L1, mediaTypePopup, mediaTypeLabel},
        {"VKColorPaperThick"_L1, paperThickPopup, paperThickLabel},
        {"VKInputSlot"_L1, paperFeedPopup, paperFeedLabel},
        {"VKMonoColor"_L1, monoColorPopup, monoColorLabel},
        {"VKSlowDrying"_L1, slowDryButton, nullptr},
        {"VKBiDir"_L1, biDirButton, nullptr},
        {"VKMirror"_L1, mirrorButton, nullptr},
        {"MirrorPrint"_L1, mirrorButton, nullptr},
        {"VKReverse"_L1, reverseButton, nullptr},
        {"VKJpeg"_L1, jpegPopup, jpegLabel},
        {"VKDuplexMode"_L1, duplexPopup, duplexLabel},
        {"VKVertLineAlignA3B4Ledger"_L1, vertLineAlignA3Button, nullptr},
        {"VKVertLineAlignA4Letter"_L1, vertLineAlignA4Button, nullptr},
        {"VKVertLineAlignOther"_L1, vertLineAlignOtherButton, nullptr},
        {kDedicatedMedia, vertLineAlignQM43Button, nullptr},
    };
    return keywordRows_;
}

QString VKInkPrintSetting14PDE::determineKey(QWidget *control) const
{
    // An outlet that is not connected is null too, and must not answer for no control at all.
    if (!control)
        return {};
    for (const KeywordRow &row : keywordRows()) {
        if (row.control != control)
            continue;
        if (row.keyword == "VKMirror"_L1 && !managesKeyword(row.keyword))
            continue;
        const bool dedicated = row.keyword == kDedicatedMedia;
        return dedicated && firstLanguageSetting() != kDedicatedMediaLanguage
                   ? QString()
                   : QString(row.keyword);
    }
    return {};
}

const VKInkPrintSetting14PDE::KeywordRow *
VKInkPrintSetting14PDE::keywordRow(const QString &keyword) const
{
    const auto &rows = keywordRows();
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const KeywordRow &candidate) {
        return candidate.keyword == keyword;
    });
    return row == rows.end() ? nullptr : &*row;
}

QWidget *VKInkPrintSetting14PDE::determineUI(const QString &keyword) const
{
    const KeywordRow *row = keywordRow(keyword);
    if (!row ||
        (row->keyword == kDedicatedMedia && firstLanguageSetting() != kDedicatedMediaLanguage))
        return nullptr;
    return row->control;
}

QWidget *VKInkPrintSetting14PDE::determineLabel(const QString &keyword) const
{
    const KeywordRow *row = keywordRow(keyword);
    return row ? row->label : nullptr;
}

std::optional<QStringList> VKInkPrintSetting14PDE::availablePPDOptionKeys() const
{
    QStringList keywords = VKPrintQualityPDE::availablePPDOptionKeys().value_or(QStringList());
    if (hasFlag(JpegUnavailable))
        keywords.removeAll(u"VKJpeg"_s);
    return keywords;
}

void VKInkPrintSetting14PDE::checkModelName()
{
    VKPrintQualityPDE::checkModelName();
    if (ppd)
        setFlag(NewerModelClass, isNewerModelClass(ppd->model_number, ppdName(ppd->modelname)));
}

QString VKInkPrintSetting14PDE::addOnOffSuffix(QWidget *control, const QString &text) const
{
    const auto *button = qobject_cast<QAbstractButton *>(control);
    const auto *box = qobject_cast<QCheckBox *>(control);
    // A box between on and off counts as ticked for Qt.
    const bool mixed = box && box->checkState() == Qt::PartiallyChecked;
    const bool on = button && button->isEnabled() && button->isChecked() && !mixed;
    return text + (on ? "_on"_L1 : "_off"_L1);
}

QString VKInkPrintSetting14PDE::firstLanguageSetting() const
{
    return preferredLanguages().first();
}
