#include "printsettings/PrintPPDCheck.h"

#include "panel/PPDCheck.h"
#include "panel/PPDWords.h"
#include "printsettings/PrintControls.h"
#include "printsettings/rules/ColorModes.h"
#include "printsettings/rules/DefaultChoices.h"
#include "printsettings/rules/MediaQuality.h"
#include "printsettings/rules/PaperChange.h"
#include "printsettings/rules/PaperKind.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString kMedium = u"VKMediaType"_s;
const QString kQuality = u"VKResolution"_s;

bool isDiscMedium(const QString &mediaType)
{
    return allowedQualities(mediaType, true, false).replacement.isNull();
}

QStringList qualitiesOf(const QString &mediaType)
{
    return allowedQualities(mediaType, isDiscMedium(mediaType), false).qualities;
}

QStringList knownQualities()
{
    QStringList qualities;
    for (const QString &mediaType : knownMedia())
        qualities << qualitiesOf(mediaType);
    qualities.removeDuplicates();
    return qualities;
}

// A medium starts with one quality, and offers others: without any of them it offers nothing.
void checkMedium(PPDCheck &check, const QString &mediaType)
{
    const QString what = kMedium + u'=' + mediaType;
    check.expectPartner(what, kQuality, defaultQuality(mediaType, {}));
    const QStringList qualities = qualitiesOf(mediaType);
    const QStringList present = check.choices(kQuality);
    const bool offersAny = std::ranges::any_of(qualities, [&](const QString &quality) {
        return present.contains(quality, Qt::CaseInsensitive);
    });
    if (!offersAny)
        check.expectPartner(what, kQuality, qualities.constFirst());
}

void checkMedia(PPDCheck &check)
{
    if (!check.has(kMedium))
        return;
    const QString fallback = allowedQualities(QString(), false, false).replacement;
    check.expectNoOthersThan(kMedium, knownMedia());
    check.expectChoices(kMedium, {fallback});
    if (!check.has(kQuality)) {
        check.expectPartner(kMedium, kQuality);
        return;
    }
    for (const QString &mediaType : check.choices(kMedium)) {
        if (knownMedia().contains(mediaType))
            checkMedium(check, mediaType);
    }
    if (check.choices(kMedium).contains(u"PlainDuplex"_s))
        check.expectPartner(kMedium + u"=PlainDuplex"_s, u"Duplex"_s);
}

void checkPapers(PPDCheck &check)
{
    for (const QString &paper : check.choices(u"PageSize"_s)) {
        if (isDiscPaper(paper) && check.has(kMedium))
            check.expectPartner(u"PageSize="_s + paper, kMedium, mediumForDisc(false, true));
    }
}

} // namespace

void checkPrintSettings(PPDCheck &check)
{
    checkMedia(check);
    if (check.has(kQuality))
        check.expectPartner(kQuality, kMedium);
    check.expectNoOthersThan(kQuality, knownQualities());
    checkPapers(check);
    check.expectNoOthersThan(u"VKMonoColor"_s, colorModes());
    check.expectChoices(u"VKMonoColor"_s, colorModes());
    check.expectChoices(u"VKColorPaperThick"_s, {paperThickness(false), paperThickness(true)});
    check.expectChoices(u"VKInputSlot"_s, {defaultChoice(RuledPopUp::PaperFeed, {})});
    check.expectSpelling(kOutputKeyword, {kFaxChoice});
    check.expectControls(kPrintControls);
    check.expectDefault(u"Duplex"_s);
}
