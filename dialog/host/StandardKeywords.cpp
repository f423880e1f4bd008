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
    const char *text; ///< for people, to be translated ("StandardKeywords")
};

constexpr std::array kWords{
    Word{"ColorModel", QT_TRANSLATE_NOOP("StandardKeywords", "Color Mode")},
    Word{"cupsPrintQuality", QT_TRANSLATE_NOOP("StandardKeywords", "Print Quality")},
    Word{"Duplex", QT_TRANSLATE_NOOP("StandardKeywords", "Two-Sided Printing")},
    Word{"FoldType", QT_TRANSLATE_NOOP("StandardKeywords", "Fold")},
    Word{"InputSlot", QT_TRANSLATE_NOOP("StandardKeywords", "Paper Source")},
    Word{"MediaType", QT_TRANSLATE_NOOP("StandardKeywords", "Media Type")},
    Word{"OutputBin", QT_TRANSLATE_NOOP("StandardKeywords", "Output Bin")},
    Word{"PageSize", QT_TRANSLATE_NOOP("StandardKeywords", "Paper Size")},
    Word{"PunchMedia", QT_TRANSLATE_NOOP("StandardKeywords", "Punch")},
    Word{"Resolution", QT_TRANSLATE_NOOP("StandardKeywords", "Resolution")},
    Word{"StapleLocation", QT_TRANSLATE_NOOP("StandardKeywords", "Staple")}};

/// Whole characters, as far as there is room.
template <typename Named> void putWords(Named &named, const QString &text)
{
    QByteArray bytes = text.toUtf8();
    for (qsizetype length = text.size(); bytes.size() >= qsizetype(sizeof named.text);)
        bytes = text.first(--length).toUtf8();
    std::strncpy(named.text, bytes.constData(), sizeof named.text - 1);
}

template <typename Named> bool hasNoWords(const Named &named, const char *name)
{
    return std::strcmp(named.text, name) == 0;
}

/// What the PPD says of the name in no language; null: nothing.
QString textInNoLanguage(ppd_file_t &ppd, const QByteArray &attribute, const char *name)
{
    const ppd_attr_t *found = ppdFindAttr(&ppd, attribute.constData(), name);
    return found && found->text[0] != '\0' ? QString::fromUtf8(found->text) : QString();
}

QString wordFor(const char *keyword)
{
    const auto *found = std::ranges::find_if(
        kWords, [&](const Word &word) { return std::strcmp(word.keyword, keyword) == 0; });
    return found == kWords.end() ? QString()
                                 : QCoreApplication::translate("StandardKeywords", found->text);
}

void nameOption(ppd_file_t &ppd, ppd_option_t &option)
{
    if (!hasNoWords(option, option.keyword))
        return;
    QString words = wordFor(option.keyword);
    if (words.isNull())
        words = textInNoLanguage(ppd, kNoLanguage, option.keyword);
    if (!words.isNull())
        putWords(option, words);
}

void nameChoices(ppd_file_t &ppd, ppd_option_t &option)
{
    const QByteArray attribute = QByteArray("C.") + option.keyword;
    for (ppd_choice_t &choice :
         std::span(option.choices, static_cast<std::size_t>(option.num_choices))) {
        if (!hasNoWords(choice, choice.choice))
            continue;
        const QString said = textInNoLanguage(ppd, attribute, choice.choice);
        if (!said.isNull())
            putWords(choice, said);
    }
}

} // namespace

void nameWhatHasNoWords(ppd_file_t &ppd)
{
    const bool speaksNoLanguage = ppdFindAttr(&ppd, kNoLanguage, nullptr);
    for (ppd_group_t &group : std::span(ppd.groups, static_cast<std::size_t>(ppd.num_groups)))
        for (ppd_option_t &option :
             std::span(group.options, static_cast<std::size_t>(group.num_options))) {
            nameOption(ppd, option);
            if (speaksNoLanguage)
                nameChoices(ppd, option);
        }
}
