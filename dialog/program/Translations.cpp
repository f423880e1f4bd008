#include "dialog/program/Translations.h"

#include "platform/foundation/Catalogue.h"
#include "platform/foundation/PreferredLanguages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>

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

} // namespace

void installTranslations()
{
    for (const QString &language : preferredLanguages()) {
        const QString base = language.section(u'-', 0, 0);
        if (base == QLatin1String(kSourceLanguage))
            return;
        if (install(openCatalogue(ownTable(base)))) {
            installToolkitTable(base);
            return;
        }
    }
}
