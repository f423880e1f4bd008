#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/foundation/PreferredLanguages.h"
#include "platform/ppd/PPDText.h"
#include "printsettings/rules/ModelClass.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

// The box for the dedicated media is for the Japanese market alone.
constexpr auto kDedicatedMedia = "VKVertLineAlignDedicated"_L1;
constexpr auto kDedicatedMediaLanguage = "ja"_L1;

} // namespace

bool VKInkPrintSetting14PDE::isOffered(const QString &keyword) const
{
    return keyword != kDedicatedMedia || firstLanguageSetting() == kDedicatedMediaLanguage;
}

QString VKInkPrintSetting14PDE::determineKey(QWidget *control) const
{
    const QString keyword = VKPrintQualityPDE::determineKey(control);
    if (keyword == "VKMirror"_L1 && !managesKeyword(keyword))
        return u"MirrorPrint"_s;
    return isOffered(keyword) ? keyword : QString();
}

QWidget *VKInkPrintSetting14PDE::determineUI(const QString &keyword) const
{
    return isOffered(keyword) ? VKPrintQualityPDE::determineUI(keyword) : nullptr;
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
