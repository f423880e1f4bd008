#pragma once

#include "platform/Export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>
#include <optional>

class QTranslator;

/// A folder that holds a plug-in: its information dictionary (Info.json), its library, and under
/// Resources/ its views, pictures and string tables.
class VELKARO_PLATFORM_EXPORT Bundle
{
public:
    /// Where localised strings come from.
    enum class Strings {
        Tables, ///< the string tables, in the user's language
        Keys,   ///< nowhere: every look-up gives its key, so that output is language-free
    };

    /// The bundle at `path`, remembered so that bundleContaining() finds it while it lives. Never
    /// null: a folder that is missing or has no readable Info.json gives a bundle without an
    /// information dictionary.
    static std::shared_ptr<Bundle> open(const QString &path);

    /// The newest open bundle whose folder holds the library that `code` (the address of a function
    /// or of static data) belongs to; code outside every bundle belongs to the main bundle.
    static std::shared_ptr<Bundle> bundleContaining(const void *code);

    /// The bundle of code that lies in no bundle, such as panels linked into a program; null: none.
    static void setMainBundle(std::shared_ptr<Bundle> bundle);

    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    /// The absolute path of the bundle's folder.
    QString bundlePath() const { return m_path; }

    /// The information dictionary; none when there is no readable one.
    const std::optional<QVariantMap> &infoDictionary() const { return m_info; }

    /// One entry of the information dictionary; invalid when it is missing.
    QVariant infoValue(const QString &key) const;

    /// Puts these entries over those of the information dictionary.
    void overrideInfo(const QVariantMap &entries);

    /// "CFBundleIdentifier"; null when the bundle has none.
    QString bundleIdentifier() const;

    /// The path of the resource NAME.TYPE; null when the bundle has none. Names with a path
    /// separator are never found: they may come from a PPD.
    QString pathForResource(const QString &name, const QString &type) const;

    /// The text under the key in the default string table, in the first of the user's languages
    /// that has a table (English where none has); the key itself when the table lacks it.
    QString localizedString(const QString &key) const;

    /// The tables, unless something else is set.
    void setStrings(Strings strings) { m_strings = strings; }

    /// Looks in the string tables of these languages and in the English one alone; an empty list:
    /// in all, as at first.
    void setTableLanguages(const QStringList &languages);

private:
    explicit Bundle(const QString &path);
    QString stringTable(const QString &language) const;
    void loadStringTable() const;

    QString m_path;
    std::optional<QVariantMap> m_info;
    Strings m_strings = Strings::Tables;
    QStringList m_tableLanguages; // empty: all
    mutable std::unique_ptr<QTranslator> m_table;
    mutable QStringList m_languagesOfTable; // the user's when m_table was opened
};
