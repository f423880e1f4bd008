#include "dialog/window/Translations.h"

#include "platform/foundation/PreferredLanguages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>

#include <memory>

namespace {

constexpr auto kSourceLanguage = "en";

bool install(const QString &name, const QString &folder)
{
    auto table = std::make_unique<QTranslator>();
    if (!table->load(name, folder))
        return false;
    QCoreApplication *application = QCoreApplication::instance();
    table->setParent(application);
    return QCoreApplication::installTranslator(table.release());
}

QString ownFolder()
{
    return QDir(QCoreApplication::applicationDirPath())
        .filePath(QStringLiteral(VELKARO_SHARE_FROM_BIN "/translations"));
}

} // namespace

void installTranslations()
{
    for (const QString &language : preferredLanguages()) {
        const QString base = language.section(u'-', 0, 0);
        if (base == QLatin1String(kSourceLanguage))
            return;
        if (install(QStringLiteral("Dialog_") + base, ownFolder())) {
            install(QStringLiteral("qtbase_") + base,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath));
            return;
        }
    }
}
