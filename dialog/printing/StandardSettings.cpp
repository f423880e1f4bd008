#include "dialog/printing/StandardSettings.h"

#include "dialog/host/PPDMarks.h"
#include "dialog/printing/SettingRequests.h"
#include "platform/ppd/PPDText.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kMedia = "media"_L1;
constexpr auto kPaperKeyword = "PageSize"_L1;
constexpr auto kBin = "output-bin"_L1;
constexpr auto kBinKeyword = "OutputBin"_L1;
constexpr auto kOwnSize = "Custom."_L1;

/// A name and values of it that map to different choices where a printer has any.
struct StandardName
{
    QLatin1String name;
    std::array<QLatin1String, 2> values;
    QLatin1String third = {}; ///< where it has these three alone; libcups takes any number
};

constexpr std::array kNames{
    StandardName{"sides"_L1, {"one-sided"_L1, "two-sided-long-edge"_L1}},
    StandardName{"print-quality"_L1, {"3"_L1, "5"_L1}, "4"_L1},
    StandardName{"print-color-mode"_L1, {"monochrome"_L1, "color"_L1}},
    StandardName{kBin, {"face-up"_L1, "face-down"_L1}},
    StandardName{kMedia, {"iso_a4_210x297mm"_L1, "iso_a5_148x210mm"_L1}},
};

void markAsCups(ppd_file_t *ppd, const QString &name, const QString &value)
{
    cups_option_t *options = nullptr;
    const int count =
        cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), 0, &options);
    cupsMarkOptions(ppd, count, options);
    cupsFreeOptions(count, options);
}

void markAgain(ppd_file_t *ppd, const QList<PPDMark> &before)
{
    const QList<PPDMark> changed = changedMarks(ppd, before);
    for (const PPDMark &mark : changed) {
        const auto former = std::ranges::find(before, mark.keyword, &PPDMark::keyword);
        if (former != before.end())
            forceChoice(ppd, former->keyword, former->choice);
    }
}

bool isValue(const StandardName &standard, const QString &value)
{
    return standard.third.isEmpty() || value == standard.third ||
           std::ranges::find(standard.values, value) != standard.values.end();
}

/// What the value marks. It may be marked already: so it is looked for after either of two others.
QList<PPDMark> marksFor(ppd_file_t *ppd, const StandardName &standard, const QString &value)
{
    const QList<PPDMark> before = marksOf(ppd);
    QList<PPDMark> marks;
    for (const QLatin1String other : standard.values) {
        markAsCups(ppd, standard.name, other);
        const QList<PPDMark> base = marksOf(ppd);
        markAsCups(ppd, standard.name, value);
        if (marks.isEmpty())
            marks = changedMarks(ppd, base);
    }
    markAgain(ppd, before);
    return marks;
}

/// The wish as the PPD names it; none where the PPD has no choice for it.
QList<RequestedChoice> namedByPPD(ppd_file_t *ppd, const RequestedChoice &wanted)
{
    const auto *standard = std::ranges::find(kNames, wanted.keyword, &StandardName::name);
    if (!ppd || standard == kNames.end())
        return {wanted};
    if (wanted.keyword == kMedia && wanted.choice.startsWith(kOwnSize))
        return {{kPaperKeyword, wanted.choice}};
    if (!isValue(*standard, wanted.choice))
        return {};
    QList<RequestedChoice> named;
    for (const PPDMark &mark : marksFor(ppd, *standard, wanted.choice))
        named += RequestedChoice{mark.keyword, mark.choice};
    return named;
}

/// The choices that say the same as the wish, by the plug-in's word.
QList<RequestedChoice> namedByPlugIn(ppd_file_t *ppd, const QList<AttributeRule> &rules,
                                     const RequestedChoice &wanted)
{
    QList<RequestedChoice> named;
    for (const AttributeRule &rule : rules) {
        if (rule.attribute != wanted.keyword || rule.value != wanted.choice)
            continue;
        const RequestedChoice choice{rule.marks.constFirst().keyword,
                                     rule.marks.constFirst().choice};
        const bool isThere = findChoice(findOption(ppd, choice.keyword), choice.choice);
        if (rule.marks.size() == 1 && isThere && !named.contains(choice))
            named += choice;
    }
    return named;
}

QList<RequestedChoice> leftOf(const QList<RequestedChoice> &choices,
                              const ChoiceNarrowing &narrowed)
{
    const QList<RequestedChoice> left =
        narrowed && choices.size() > 1 ? narrowed(choices) : QList<RequestedChoice>();
    return left.isEmpty() ? choices : left;
}

/// As they are typed; of a name whose values are the printer's own, as far as they are its choices.
QStringList valuesOf(ppd_file_t *ppd, const QString &name)
{
    if (name == kMedia)
        return typedChoices(ppd, kPaperKeyword);
    if (name == "sides"_L1)
        return {u"one-sided"_s, u"two-sided-long-edge"_s, u"two-sided-short-edge"_s};
    if (name == "print-quality"_L1)
        return {u"3"_s, u"4"_s, u"5"_s};
    return name == "print-color-mode"_L1 ? QStringList{u"color"_s, u"monochrome"_s} : QStringList();
}

Fault notThere(ppd_file_t *ppd, const QList<AttributeRule> &rules, const RequestedChoice &wanted)
{
    const QStringList values = valuesOf(ppd, wanted.keyword);
    const bool isThere = std::ranges::any_of(values, [&](const QString &value) {
        const RequestedChoice one{wanted.keyword, value};
        return !namedByPPD(ppd, one).isEmpty() || !namedByPlugIn(ppd, rules, one).isEmpty();
    });
    const bool hasBins = wanted.keyword == kBin && findOption(ppd, kBinKeyword);
    return isThere || hasBins ? noSuchValue(wanted, values) : noSuchSetting(wanted.keyword);
}

Fault tooMany(const RequestedChoice &wanted, const QList<RequestedChoice> &alike)
{
    QStringList typed;
    for (const RequestedChoice &choice : alike)
        typed += choice.keyword + u'=' + choice.choice;
    return severalChoices(wanted, typed);
}

} // namespace

NamedWishes inPrintersNames(ppd_file_t *ppd, const QList<AttributeRule> &rules,
                            const QList<RequestedChoice> &wanted, const ChoiceNarrowing &narrowed)
{
    NamedWishes named;
    for (const RequestedChoice &one : wanted) {
        const QList<RequestedChoice> choices = namedByPPD(ppd, one);
        const QList<RequestedChoice> alike =
            choices.isEmpty() ? leftOf(namedByPlugIn(ppd, rules, one), narrowed) : choices;
        if (choices.isEmpty() && alike.size() != 1) {
            if (named.state)
                named.state = alike.isEmpty() ? notThere(ppd, rules, one) : tooMany(one, alike);
            continue;
        }
        named.wanted += alike;
    }
    return named;
}
