#include "platform/foundation/PreferredLanguages.h"

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

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

QStringList systemLanguages()
{
    QStringList tags;
    for (const QString &name : localeNames()) {
        const QString tag = languageTag(name);
        if (!tag.isNull() && !tags.contains(tag))
            tags << tag;
    }
    return tags.isEmpty() ? QStringList{QStringLiteral("en")} : tags;
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
    const QString language = match.captured(1);
    const QString region = match.captured(2);
    const QString ownRegion = QLocale(language).name().section(u'_', 1, 1);
    if (region.isEmpty() || region == ownRegion)
        return language;
    return language + u'-' + region;
}
