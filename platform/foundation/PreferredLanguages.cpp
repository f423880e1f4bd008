#include "platform/foundation/PreferredLanguages.h"

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

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
    static const QRegularExpression form(
        QStringLiteral("\\A([a-z]{2,3})(?:[-_]([A-Z]{2}))?(?:[.@].*)?\\z"));
    const auto match = form.match(localeName);
    if (!match.hasMatch())
        return {};
    QString language = match.captured(1);
    const QString region = match.captured(2);
    const QString ownRegion = QLocale(language).name().section(u'_', 1, 1);
    if (region.isEmpty() || region == ownRegion)
        return language;
    return language + u'-' + region;
}
