#include "dialog/printing/OwnSettings.h"

#include "dialog/job/JobLayout.h"
#include "dialog/job/PageRanges.h"
#include "dialog/printing/PrintJob.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostCopies = 999;
constexpr auto kPortrait = "portrait"_L1;
constexpr auto kLandscape = "landscape"_L1;

QString normalizedCopies(const QString &value)
{
    const int copies = value.toInt();
    return copies >= 1 && copies <= kMostCopies ? QString::number(copies) : QString();
}

void takeCopies(PrintJob &job, const QString &value)
{
    job.settings().copies = value.toInt();
}

void takePages(PrintJob &job, const QString &value)
{
    job.settings().pageRanges = value;
}

QString normalizedOrientation(const QString &value)
{
    if (value == "4"_L1 || value == kLandscape)
        return kLandscape;
    return value == "3"_L1 || value == kPortrait ? QString(kPortrait) : QString();
}

void takeOrientation(PrintJob &job, const QString &value)
{
    job.setOrientation(value == kLandscape ? PMOrientation::Landscape : PMOrientation::Portrait);
}

QString normalizedLandscape(const QString &value)
{
    if (value == "true"_L1)
        return kLandscape;
    return value == "false"_L1 ? QString(kPortrait) : QString();
}

constexpr auto kOrientation = "orientation-requested"_L1;
constexpr auto kPrintScaling = "print-scaling"_L1;
constexpr auto kFitToPage = "fit-to-page"_L1;

QString normalizedScaling(const QString &value)
{
    const auto scaling = scalingOf({kPrintScaling, value});
    return scaling ? scalingKeyword(*scaling) : QString();
}

QString normalizedFit(const QString &value)
{
    const auto scaling = scalingOf({kFitToPage, value});
    return scaling ? scalingKeyword(*scaling) : QString();
}

void takeScaling(PrintJob &job, const QString &value)
{
    job.settings().scaling = scalingOf({kPrintScaling, value}).value_or(PrintScaling::Automatic);
}

constexpr auto kCollation = "multiple-document-handling"_L1;

QString normalizedCollation(const QString &value)
{
    if (value == "true"_L1)
        return u"separate-documents-collated-copies"_s;
    return value == "false"_L1 ? u"separate-documents-uncollated-copies"_s : QString();
}

void takeCollation(PrintJob &job, const QString &value)
{
    job.settings().layout.collation = value;
}

struct OwnSetting
{
    QLatin1String name;
    QString (*normalized)(const QString &value);
    void (*take)(PrintJob &job, const QString &value);
    const char *values;       ///< that are typed, separated by spaces
    QLatin1String other = {}; ///< the one name of the setting, where this is another one
};

constexpr std::array kOwnSettings{
    OwnSetting{"copies"_L1, normalizedCopies, takeCopies, "1-999"},
    OwnSetting{"page-ranges"_L1, normalizedPageRanges, takePages, "1-3,5"},
    OwnSetting{kOrientation, normalizedOrientation, takeOrientation, "portrait landscape 3 4"},
    OwnSetting{kLandscape, normalizedLandscape, takeOrientation, "true false", kOrientation},
    OwnSetting{kPrintScaling, normalizedScaling, takeScaling, "auto none fit fill"},
    OwnSetting{kFitToPage, normalizedFit, takeScaling, "true false", kPrintScaling},
    OwnSetting{"collate"_L1, normalizedCollation, takeCollation, "true false", kCollation}};

const OwnSetting *settingNamed(const QString &name)
{
    const auto found = std::ranges::find(kOwnSettings, name, &OwnSetting::name);
    return found == kOwnSettings.end() ? nullptr : &*found;
}

} // namespace

bool isOwnSetting(const QString &name)
{
    return settingNamed(name) || layoutSetting(name);
}

QString ownSettingName(const QString &name)
{
    const OwnSetting *setting = settingNamed(name);
    return setting && !setting->other.isEmpty() ? QString(setting->other) : name;
}

QString normalizedOwnValue(const QString &name, const QString &value)
{
    if (const LayoutSetting *setting = layoutSetting(name))
        return normalizedLayoutValue(*setting, value);
    const OwnSetting *setting = settingNamed(name);
    return setting ? setting->normalized(value) : QString();
}

QStringList ownValues(const QString &name)
{
    if (const LayoutSetting *layout = layoutSetting(name))
        return layoutValues(*layout);
    const OwnSetting *setting = settingNamed(name);
    return setting ? QString::fromLatin1(setting->values).split(u' ') : QStringList();
}

void takeOwnSetting(PrintJob &job, const QString &name, const QString &value)
{
    if (const LayoutSetting *setting = layoutSetting(name))
        job.settings().layout.*setting->value = value;
    else if (const OwnSetting *own = settingNamed(name))
        own->take(job, value);
}
