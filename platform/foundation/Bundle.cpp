#include "platform/foundation/Bundle.h"

#include "platform/foundation/Catalogue.h"
#include "platform/foundation/PreferredLanguages.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTranslator>

#include <dlfcn.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr auto kStringTable = "Localizable";
constexpr qint64 kLargestInfo = 1 << 20; // bytes

std::vector<std::weak_ptr<Bundle>> &openBundles()
{
    static std::vector<std::weak_ptr<Bundle>> bundles;
    return bundles;
}

std::shared_ptr<Bundle> &mainBundle()
{
    static std::shared_ptr<Bundle> bundle;
    return bundle;
}

std::optional<QVariantMap> readInfo(const QString &path)
{
    // A pipe would be waited for, and a device may have no end.
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.size() > kLargestInfo || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const auto document = QJsonDocument::fromJson(file.read(info.size()));
    if (!document.isObject())
        return std::nullopt;
    return document.object().toVariantMap();
}

QString libraryOf(const void *code)
{
    Dl_info info{};
    if (!dladdr(code, &info) || !info.dli_fname)
        return {};
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath();
}

} // namespace

Bundle::Bundle(const QString &path) : m_path(QDir(path).absolutePath())
{
    m_info = readInfo(m_path + QStringLiteral("/Info.json"));
}

Bundle::~Bundle() = default;

std::shared_ptr<Bundle> Bundle::open(const QString &path)
{
    std::shared_ptr<Bundle> bundle(new Bundle(path));
    std::erase_if(openBundles(), [](const auto &known) { return known.expired(); });
    openBundles().push_back(bundle);
    return bundle;
}

std::shared_ptr<Bundle> Bundle::bundleContaining(const void *code)
{
    const QString library = libraryOf(code);
    const auto &bundles = openBundles();
    for (auto known = bundles.rbegin(); known != bundles.rend(); ++known) {
        auto bundle = known->lock();
        const QString folder = bundle ? QFileInfo(bundle->m_path).canonicalFilePath() : QString();
        if (!folder.isEmpty() && library.startsWith(folder + u'/'))
            return bundle;
    }
    return mainBundle();
}

void Bundle::setMainBundle(std::shared_ptr<Bundle> bundle)
{
    mainBundle() = std::move(bundle);
}

QVariant Bundle::infoValue(const QString &key) const
{
    return m_info ? m_info->value(key) : QVariant();
}

void Bundle::overrideInfo(const QVariantMap &entries)
{
    if (!m_info)
        m_info.emplace();
    m_info->insert(entries);
}

QString Bundle::bundleIdentifier() const
{
    const QString identifier = infoValue(QStringLiteral("CFBundleIdentifier")).toString();
    return identifier.isEmpty() ? QString() : identifier;
}

QString Bundle::pathForResource(const QString &name, const QString &type) const
{
    if (name.isEmpty() || name.contains(u'/') || name.contains(QChar::Null))
        return {};
    const QString path = m_path + QStringLiteral("/Resources/") + name + u'.' + type;
    return QFileInfo(path).isFile() ? path : QString();
}

QString Bundle::stringTable(const QString &language) const
{
    return pathForResource(QLatin1String(kStringTable) + u'_' + language, QStringLiteral("qm"));
}

void Bundle::loadStringTable() const
{
    const QStringList languages = preferredLanguages();
    if (m_table && m_languagesOfTable == languages)
        return;
    m_languagesOfTable = languages;
    QStringList candidates;
    for (const QString &language : languages)
        candidates << language << language.section(u'-', 0, 0);
    if (!m_tableLanguages.isEmpty())
        candidates.removeIf([this](const QString &one) { return !m_tableLanguages.contains(one); });
    candidates << QStringLiteral("en");
    for (const QString &language : std::as_const(candidates)) {
        const QString path = stringTable(language);
        m_table = path.isNull() ? nullptr : openCatalogue(path);
        if (m_table)
            return;
    }
    m_table = std::make_unique<QTranslator>();
}

void Bundle::setTableLanguages(const QStringList &languages)
{
    m_tableLanguages = languages;
    m_table.reset();
}

QString Bundle::localizedString(const QString &key) const
{
    if (m_strings == Strings::Keys || key.isNull())
        return key;
    loadStringTable();
    const QString text = m_table->translate(kStringTable, key.toUtf8().constData());
    return text.isEmpty() ? key : text;
}
