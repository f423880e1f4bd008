#include "dialog/job/StandardAttributes.h"

#include "platform/ppd/PPDText.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Twin
{
    const char *keyword;
    const char *choice;
    const char *attribute;
    const char *value;
};

// The keywords and choices are those of the CUPS PPD extensions, the values those of IPP.
constexpr std::array kTwins{
    Twin{"ColorModel", "Gray", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "Gray16", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "Black", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "KGray", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "RGB", "print-color-mode", "color"},
    Twin{"ColorModel", "CMYK", "print-color-mode", "color"},
    Twin{"ColorModel", "Color", "print-color-mode", "color"},
    Twin{"cupsPrintQuality", "Draft", "print-quality", "3"},
    Twin{"cupsPrintQuality", "Normal", "print-quality", "4"},
    Twin{"cupsPrintQuality", "High", "print-quality", "5"},
    Twin{"Duplex", "None", "sides", "one-sided"},
    Twin{"Duplex", "DuplexNoTumble", "sides", "two-sided-long-edge"},
    Twin{"Duplex", "DuplexTumble", "sides", "two-sided-short-edge"},
};

// What a preset of a PPD says of itself, and what that comes to.
constexpr std::array kPresetWords{
    Twin{"com.apple.print.preset.quality", "low", "print-quality", "3"},
    Twin{"com.apple.print.preset.quality", "mid", "print-quality", "4"},
    Twin{"com.apple.print.preset.quality", "high", "print-quality", "5"},
    Twin{"com.apple.print.preset.output-mode", "monochrome", "print-color-mode", "monochrome"},
    Twin{"com.apple.print.preset.output-mode", "color", "print-color-mode", "color"},
};

constexpr auto kFinishings = "finishings"_L1;
constexpr auto kNoFinishing = "3"_L1;

/// The choices of the printer that are named by "*KEYWORD CHOICE" among the words.
QList<PPDMark> choicesIn(ppd_file_t *ppd, const QStringList &words)
{
    QList<PPDMark> marks;
    for (qsizetype index = 0; index + 1 < words.size(); ++index) {
        if (!words[index].startsWith(u'*'))
            continue;
        ppd_option_t *option = findOption(ppd, words[index].mid(1));
        if (const ppd_choice_t *choice = findChoice(option, words[index + 1]))
            marks += PPDMark{ppdName(option->keyword), ppdName(choice->choice)};
    }
    return marks;
}

QStringList wordsOf(const ppd_attr_t &attribute)
{
    return ppdText(attribute.value).split(u' ', Qt::SkipEmptyParts);
}

/// What a preset says counts where nothing but the preset's choices is marked.
QList<AttributeRule> rulesOfPreset(ppd_file_t *ppd, const ppd_attr_t &preset)
{
    const QStringList words = wordsOf(preset);
    const QList<PPDMark> marks = choicesIn(ppd, words);
    QList<AttributeRule> rules;
    for (const Twin &word : kPresetWords) {
        const qsizetype place = words.indexOf(QLatin1String(word.keyword));
        if (place >= 0 && words.value(place + 1) == QLatin1String(word.choice) && !marks.isEmpty())
            rules += AttributeRule{marks, QString::fromLatin1(word.attribute),
                                   QString::fromLatin1(word.value)};
    }
    return rules;
}

/// Such a line goes by the number that IPP has for it.
QList<AttributeRule> rulesOfFinishing(ppd_file_t *ppd, const ppd_attr_t &finishing)
{
    const QString number = ppdName(finishing.spec);
    const QList<PPDMark> marks = choicesIn(ppd, wordsOf(finishing));
    const bool isOne = number.toInt() >= kNoFinishing.toInt() && !marks.isEmpty();
    return isOne ? QList<AttributeRule>{{marks, kFinishings, number}} : QList<AttributeRule>();
}

QList<AttributeRule> rulesOfAttribute(ppd_file_t *ppd, const char *name,
                                      QList<AttributeRule> (*rulesOf)(ppd_file_t *,
                                                                      const ppd_attr_t &))
{
    QList<AttributeRule> rules;
    for (const ppd_attr_t *attribute = ppd ? ppdFindAttr(ppd, name, nullptr) : nullptr; attribute;
         attribute = ppdFindNextAttr(ppd, name, nullptr))
        rules += rulesOf(ppd, *attribute);
    return rules;
}

bool isMarked(const QList<PPDMark> &marks, const PPDMark &wanted)
{
    return std::ranges::any_of(marks, [&](const PPDMark &mark) {
        return isSameName(mark.keyword, wanted.keyword) && isSameName(mark.choice, wanted.choice);
    });
}

bool applies(const AttributeRule &rule, const QList<PPDMark> &marks, const QList<JobOption> &sent)
{
    const auto isSent = [&](const PPDMark &mark) {
        return std::ranges::any_of(
            sent, [&](const JobOption &option) { return isSameName(option.name, mark.keyword); });
    };
    return std::ranges::all_of(rule.marks,
                               [&](const PPDMark &mark) { return isMarked(marks, mark); }) &&
           std::ranges::any_of(rule.marks, isSent);
}

/// Another of several finishings; "none" gives way to each.
void addFinishing(JobOption &option, const QString &value)
{
    if (option.value == kNoFinishing)
        option.value = value;
    else if (value != kNoFinishing && !option.value.split(u',').contains(value))
        option.value += u',' + value;
}

} // namespace

QList<AttributeRule> attributeRulesFor(ppd_file_t *ppd, const QList<AttributeRule> &ofPlugIn)
{
    QList<AttributeRule> rules = ofPlugIn +
                                 rulesOfAttribute(ppd, "APPrinterPreset", rulesOfPreset) +
                                 rulesOfAttribute(ppd, "cupsIPPFinishings", rulesOfFinishing);
    for (const Twin &twin : kTwins)
        rules +=
            AttributeRule{{{QString::fromLatin1(twin.keyword), QString::fromLatin1(twin.choice)}},
                          QString::fromLatin1(twin.attribute),
                          QString::fromLatin1(twin.value)};
    return rules;
}

QList<JobOption> standardAttributes(const QList<PPDMark> &marks, const QList<JobOption> &sent,
                                    const QList<AttributeRule> &rules)
{
    QList<JobOption> attributes;
    for (const AttributeRule &rule : rules) {
        if (!applies(rule, marks, sent))
            continue;
        const auto known = std::ranges::find(attributes, rule.attribute, &JobOption::name);
        if (known == attributes.end())
            attributes += JobOption{rule.attribute, rule.value};
        else if (rule.attribute == kFinishings)
            addFinishing(*known, rule.value);
    }
    return attributes;
}
