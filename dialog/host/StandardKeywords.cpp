#include "dialog/host/StandardKeywords.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

namespace {

constexpr auto kNoLanguage = "C.Translation"; // the attribute that has the options' texts

struct Word
{
    const char *keyword;
    const char *choice; ///< null: the option itself
    const char *text;   ///< for people, to be translated ("StandardKeywords")
    const char *made;   ///< in PPDs that are made for driverless queues; null: the text
};

constexpr std::array kWords{
    Word{"ColorModel", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Color Mode"), "Output Mode"},
    Word{"ColorModel", "FastGray", QT_TRANSLATE_NOOP("StandardKeywords", "Fast Grayscale"),
         nullptr},
    Word{"ColorModel", "Gray", QT_TRANSLATE_NOOP("StandardKeywords", "Grayscale"), nullptr},
    Word{"ColorModel", "RGB", QT_TRANSLATE_NOOP("StandardKeywords", "Color"), nullptr},
    Word{"cupsPrintQuality", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Print Quality"),
         nullptr},
    Word{"cupsPrintQuality", "Draft", QT_TRANSLATE_NOOP("StandardKeywords", "Draft"), nullptr},
    Word{"cupsPrintQuality", "Normal", QT_TRANSLATE_NOOP("StandardKeywords", "Normal"), nullptr},
    Word{"cupsPrintQuality", "High", QT_TRANSLATE_NOOP("StandardKeywords", "High"), nullptr},
    Word{"Duplex", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Two-Sided Printing"),
         "2-Sided Printing"},
    Word{"Duplex", "None", QT_TRANSLATE_NOOP("StandardKeywords", "Off (1-Sided)"), nullptr},
    Word{"Duplex", "DuplexNoTumble", QT_TRANSLATE_NOOP("StandardKeywords", "Long-Edge (Portrait)"),
         nullptr},
    Word{"Duplex", "DuplexTumble", QT_TRANSLATE_NOOP("StandardKeywords", "Short-Edge (Landscape)"),
         nullptr},
    Word{"General", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "General"), nullptr}, // a group
    Word{"FoldType", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Fold"), nullptr},
    Word{"InputSlot", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Paper Source"),
         "Media Source"},
    Word{"InputSlot", "Auto", QT_TRANSLATE_NOOP("StandardKeywords", "Automatic"), nullptr},
    Word{"InputSlot", "Main", QT_TRANSLATE_NOOP("StandardKeywords", "Main"), nullptr},
    Word{"InputSlot", "Alternate", QT_TRANSLATE_NOOP("StandardKeywords", "Alternate"), nullptr},
    Word{"InputSlot", "Manual", QT_TRANSLATE_NOOP("StandardKeywords", "Manual"), nullptr},
    Word{"MediaType", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Media Type"), nullptr},
    Word{"MediaType", "Stationery", QT_TRANSLATE_NOOP("StandardKeywords", "Plain Paper"),
         "Stationery"},
    Word{"MediaType", "Photographic", QT_TRANSLATE_NOOP("StandardKeywords", "Photo Paper"),
         nullptr},
    Word{"MediaType", "PhotographicGlossy",
         QT_TRANSLATE_NOOP("StandardKeywords", "Glossy Photo Paper"), nullptr},
    Word{"MediaType", "PhotographicMatte",
         QT_TRANSLATE_NOOP("StandardKeywords", "Matte Photo Paper"), nullptr},
    Word{"MediaType", "Envelope", QT_TRANSLATE_NOOP("StandardKeywords", "Envelope"), nullptr},
    Word{"MediaType", "Labels", QT_TRANSLATE_NOOP("StandardKeywords", "Labels"), nullptr},
    Word{"OutputBin", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Output Bin"), nullptr},
    Word{"OutputBin", "FaceDown", QT_TRANSLATE_NOOP("StandardKeywords", "Face Down"), nullptr},
    Word{"OutputBin", "FaceUp", QT_TRANSLATE_NOOP("StandardKeywords", "Face Up"), nullptr},
    Word{"PageSize", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Paper Size"), "Media Size"},
    Word{"PunchMedia", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Punch"), nullptr},
    Word{"Resolution", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Resolution"), nullptr},
    Word{"StapleLocation", nullptr, QT_TRANSLATE_NOOP("StandardKeywords", "Staple"), nullptr},
    Word{"StapleLocation", "None", QT_TRANSLATE_NOOP("StandardKeywords", "None"), nullptr}};

/// Whole characters, as far as there is room.
template <typename Named> void putWords(Named &named, const QString &text)
{
    QByteArray bytes = text.toUtf8();
    for (qsizetype length = text.size(); bytes.size() >= qsizetype(sizeof named.text);)
        bytes = text.first(--length).toUtf8();
    std::strncpy(named.text, bytes.constData(), sizeof named.text - 1);
}

/// What the PPD says of the name in no language; null: nothing.
QString textInNoLanguage(ppd_file_t &ppd, const QByteArray &attribute, const char *name)
{
    const ppd_attr_t *found = ppdFindAttr(&ppd, attribute.constData(), name);
    return found && found->text[0] != '\0' ? QString::fromUtf8(found->text) : QString();
}

bool areSame(const char *one, const char *other)
{
    return one == other || (one && other && std::strcmp(one, other) == 0);
}

/// Those of the keyword; they stand side by side.
std::span<const Word> wordsOf(const char *keyword)
{
    const auto isIts = [&](const Word &word) { return areSame(word.keyword, keyword); };
    const auto *first = std::ranges::find_if(kWords, isIts);
    return {first, std::find_if_not(first, kWords.end(), isIts)};
}

/// The user's words in place of the text that an option or a choice has: where it has none but its
/// name, and where it has what a server writes of a driverless printer in English for everybody.
/// A maker's own English is left to those who read English. Null: the text stays.
QString wordsFor(const Word &word, const char *text, bool hasNoWords)
{
    const QString words = QCoreApplication::translate("StandardKeywords", word.text);
    const bool isMade = areSame(text, word.text) || areSame(text, word.made);
    const bool isOtherLanguage = words != QLatin1String(word.text);
    return hasNoWords || (isMade && isOtherLanguage) ? words : QString();
}

/// Names a group or an option (a null choice), or one of its choices; `said` has what the PPD says
/// of them in no language (null: nothing).
template <typename Named>
void nameOne(ppd_file_t &ppd, Named &named, const char *choice, std::span<const Word> words,
             const char *name, const QByteArray &said)
{
    const bool hasNoWords = areSame(named.text, name);
    const auto word =
        std::ranges::find_if(words, [&](const Word &one) { return areSame(one.choice, choice); });
    QString text = word != words.end() ? wordsFor(*word, named.text, hasNoWords) : QString();
    if (text.isNull() && hasNoWords && !said.isNull())
        text = textInNoLanguage(ppd, said, name);
    if (!text.isNull())
        putWords(named, text);
}

void nameChoices(ppd_file_t &ppd, ppd_option_t &option, std::span<const Word> words,
                 bool speaksNoLanguage)
{
    const QByteArray said = speaksNoLanguage ? QByteArray("C.") + option.keyword : QByteArray();
    for (ppd_choice_t &choice :
         std::span(option.choices, static_cast<std::size_t>(option.num_choices)))
        nameOne(ppd, choice, choice.choice, words, choice.choice, said);
}

} // namespace

void nameWhatHasNoWords(ppd_file_t &ppd)
{
    const bool speaksNoLanguage = ppdFindAttr(&ppd, kNoLanguage, nullptr);
    for (ppd_group_t &group : std::span(ppd.groups, static_cast<std::size_t>(ppd.num_groups))) {
        nameOne(ppd, group, nullptr, wordsOf(group.name), group.name, {});
        for (ppd_option_t &option :
             std::span(group.options, static_cast<std::size_t>(group.num_options))) {
            const std::span<const Word> words = wordsOf(option.keyword);
            nameOne(ppd, option, nullptr, words, option.keyword, kNoLanguage);
            if (speaksNoLanguage || !words.empty())
                nameChoices(ppd, option, words, speaksNoLanguage);
        }
    }
}
