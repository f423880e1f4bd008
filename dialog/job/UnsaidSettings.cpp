#include "dialog/job/UnsaidSettings.h"

#include "dialog/job/JobOptions.h"
#include "platform/ppd/PPDText.h"

#include <cups/pwg.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct UsualValue
{
    QLatin1String name;
    QLatin1String value;   ///< that is shown of a job that does not say it
    bool canBeSaid = true; ///< no value says "all pages", or leaves the scaling to others
};

constexpr std::array kUsual{
    UsualValue{"booklet"_L1, "off"_L1},
    UsualValue{"copies"_L1, "1"_L1},
    UsualValue{"fit-to-page"_L1, "false"_L1},
    UsualValue{"finishings"_L1, "3"_L1},
    UsualValue{"mirror"_L1, "false"_L1},
    UsualValue{"multiple-document-handling"_L1, "separate-documents-collated-copies"_L1},
    UsualValue{"natural-scaling"_L1, "100"_L1, false},
    UsualValue{"number-up"_L1, "1"_L1},
    UsualValue{"number-up-layout"_L1, "lrtb"_L1},
    UsualValue{"orientation-requested"_L1, "3"_L1},
    UsualValue{"outputorder"_L1, "normal"_L1},
    UsualValue{"page-border"_L1, "none"_L1},
    UsualValue{"page-ranges"_L1, "1-"_L1, false},
    UsualValue{"page-set"_L1, "all"_L1},
    UsualValue{"scaling"_L1, "100"_L1, false},
};

bool isSaid(const QList<JobOption> &options, const QString &name)
{
    return std::ranges::any_of(
        options, [&](const JobOption &option) { return isSameName(option.name, name); });
}

/// Whether both are names of one paper: a PPD's ("A4"), and that of IPP ("iso_a4_210x297mm").
bool isSamePaper(const QString &ppdName, const QString &media)
{
    if (isSameName(ppdName, media))
        return true;
    const pwg_media_t *paper = pwgMediaForPPD(ppdBytes(ppdName).constData());
    return paper && media == QLatin1String(paper->pwg);
}

bool isOtherPaper(const QList<JobOption> &options, const JobOption &value)
{
    const QString paper = optionValue(options, u"PageSize"_s);
    return value.name == "media"_L1 && !paper.isNull() && !isSamePaper(paper, value.value);
}

} // namespace

QueueInfluence influenceOf(const QList<JobOption> &queue, const QList<JobOption> &options)
{
    QueueInfluence influence;
    for (const JobOption &value : queue) {
        if (isSaid(options, value.name))
            continue;
        const auto *usual = std::ranges::find(kUsual, value.name, &UsualValue::name);
        const bool isUsual = usual != kUsual.end() && usual->value == value.value;
        if (usual != kUsual.end() && usual->canBeSaid && !isUsual)
            influence.settled += JobOption{value.name, QString(usual->value)};
        else if ((usual != kUsual.end() && !isUsual) || isOtherPaper(options, value) ||
                 isVendorTicketKey(value.name))
            influence.unsettled += value;
    }
    return influence;
}
