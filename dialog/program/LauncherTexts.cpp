#include "dialog/program/LauncherTexts.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace {

struct Language
{
    std::string_view name;
    const LauncherTexts &texts;
};

const std::array kLanguages{
    Language{"de", kGermanTexts},
    Language{"en", kEnglishTexts},
    Language{"fr", kFrenchTexts},
    Language{"ja", kJapaneseTexts},
};

bool isCapital(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

/// Whether a locale's name, such as "de_CH.UTF-8", is of the language.
bool isOf(std::string_view locale, std::string_view language)
{
    if (!locale.starts_with(language))
        return false;
    locale.remove_prefix(language.size());
    if (locale.size() >= 3 && (locale[0] == '_' || locale[0] == '-') && isCapital(locale[1]) &&
        isCapital(locale[2]))
        locale.remove_prefix(3);
    return locale.empty() || locale[0] == '.' || locale[0] == '@';
}

/// Null: there are no texts in the locale's language.
const LauncherTexts *textsOf(std::string_view locale)
{
    const auto found = std::ranges::find_if(
        kLanguages, [&](const Language &language) { return isOf(locale, language.name); });
    return found == kLanguages.end() ? nullptr : &found->texts;
}

const LauncherTexts *textsOfList(std::string_view locales)
{
    while (!locales.empty()) {
        const std::string_view locale = locales.substr(0, locales.find(':'));
        if (const LauncherTexts *texts = textsOf(locale))
            return texts;
        locales.remove_prefix(std::min(locale.size() + 1, locales.size()));
    }
    return nullptr;
}

std::string_view variable(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

} // namespace

const LauncherTexts &launcherTexts()
{
    if (const LauncherTexts *texts = textsOfList(variable("LANGUAGE")))
        return *texts;
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const std::string_view locale = variable(name);
        if (locale.empty())
            continue;
        const LauncherTexts *texts = textsOf(locale);
        return texts ? *texts : kEnglishTexts;
    }
    return kEnglishTexts;
}

const char *versionText()
{
    return "velkaro-print " VELKARO_VERSION "\n";
}
