#include "dialog/program/Translations.h"

#include "platform/foundation/Catalogue.h"
#include "platform/foundation/PreferredLanguages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

#include <clocale>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSourceLanguage = "en";

bool install(std::unique_ptr<QTranslator> table)
{
    if (!table)
        return false;
    table->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(table.release());
}

QString ownTable(const QString &language)
{
    return QDir(QCoreApplication::applicationDirPath())
        .filePath(u"" VELKARO_SHARE_FROM_BIN "/translations/Dialog_%1.qm"_s.arg(language));
}

// The system's own, which is trusted.
void installToolkitTable(const QString &language)
{
    auto table = std::make_unique<QTranslator>();
    if (table->load(u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        install(std::move(table));
}

/// The first of the user's languages that the program speaks; where it speaks none, the first.
QString installTables()
{
    const QStringList languages = preferredLanguages();
    for (const QString &language : languages) {
        const QString base = language.section(u'-', 0, 0);
        if (base == QLatin1String(kSourceLanguage))
            return language;
        if (install(openCatalogue(ownTable(base)))) {
            installToolkitTable(base);
            return language;
        }
    }
    return languages.first();
}

// libcups reads the texts of a PPD and asks servers in the language of the locale, and knows no
// list of languages; where the system does not have the locale, it looks at the variable. The C
// library then knows the list alone.
void setLanguageOfLibraries(const QString &language)
{
    const QByteArray name = QLocale(language).name().toUtf8();
    const QByteArray locale = name + ".UTF-8";
    if (qEnvironmentVariableIsEmpty("LANGUAGE"))
        qputenv("LANGUAGE", name);
    if (std::setlocale(LC_MESSAGES, locale.constData()))
        return;
    std::setlocale(LC_MESSAGES, "C");
    qputenv("LC_MESSAGES", locale);
}

} // namespace

void installTranslations()
{
    setLanguageOfLibraries(installTables());
}
