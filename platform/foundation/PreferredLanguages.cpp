#include "platform/foundation/PreferredLanguages.h"

#include <QtCore/QLocale>

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

QStringList &chosenLanguages()
{
    static QStringList languages;
    return languages;
}

// The order in which POSIX systems ask: a list of languages first, then the locale of messages.
QStringList localeNames()
{
    QStringList names = QString::fromLocal8Bit(qgetenv("LANGUAGE")).split(u':', Qt::SkipEmptyParts);
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString name = QString::fromLocal8Bit(qgetenv(variable));
        if (!name.isEmpty())
            return names << name;
    }
    return names;
}

QStringList tagsOf(const QStringList &localeNames)
{
    QStringList tags;
    for (const QString &name : localeNames) {
        const QString tag = languageTag(name);
        if (!tag.isNull() && !tags.contains(tag))
            tags << tag;
    }
    return tags.isEmpty() ? QStringList{QStringLiteral("en")} : tags;
}

// The whole environment that the languages depend on.
std::string environmentText()
{
    std::string text;
    for (const char *variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char *value = std::getenv(variable);
        text.append(value ? value : "").push_back('\n');
    }
    return text;
}

// Asked for at every pick: worked out again only when the environment has changed.
QStringList systemLanguages()
{
    static std::string environment;
    static QStringList tags;
    const std::string now = environmentText();
    if (tags.isEmpty() || environment != now) {
        environment = now;
        tags = tagsOf(localeNames());
    }
    return tags;
}

bool isLanguage(QStringView code)
{
    return (code.size() == 2 || code.size() == 3) &&
           std::ranges::all_of(code, [](QChar letter) { return letter >= u'a' && letter <= u'z'; });
}

bool isRegion(QStringView code)
{
    return code.size() == 2 &&
           std::ranges::all_of(code, [](QChar letter) { return letter >= u'A' && letter <= u'Z'; });
}

} // namespace

QStringList preferredLanguages()
{
    return chosenLanguages().isEmpty() ? systemLanguages() : chosenLanguages();
}

void setPreferredLanguages(const QStringList &languages)
{
    chosenLanguages() = languages;
}

QString languageTag(const QString &localeName)
{
    const auto endsName = [](QChar letter) { return letter == u'.' || letter == u'@'; };
    const auto endsLanguage = [](QChar letter) { return letter == u'-' || letter == u'_'; };
    const auto end = std::ranges::find_if(localeName, endsName);
    const auto separator = std::find_if(localeName.begin(), end, endsLanguage);
    const bool hasRegion = separator != end;
    QString language(localeName.begin(), separator - localeName.begin());
    const QString region = hasRegion ? QString(separator + 1, end - separator - 1) : QString();
    if (!isLanguage(language) || (hasRegion && !isRegion(region)))
        return {};
    const QString ownRegion = QLocale(language).name().section(u'_', 1, 1);
    if (region.isEmpty() || region == ownRegion)
        return language;
    return language + u'-' + region;
}
