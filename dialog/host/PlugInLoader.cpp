#include "dialog/host/PlugInLoader.h"

#include "dialog/host/PlugInTrust.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEInfoKeys.h"
#include "platform/pde/PDEPlugIn.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString libraryOf(const Bundle &bundle)
{
    const QString name = bundle.infoValue(kBundleExecutableKey).toString();
    const bool plain = !name.isEmpty() && !name.contains(u'/');
    return plain ? bundle.bundlePath() + u'/' + name : QString();
}

/// The path of a view that the bundle says it has, and has not; null when all are there.
QString missingView(const Bundle &bundle)
{
    const QStringList names = bundle.infoValue(kPDEViewsKey).toStringList();
    const auto name = std::ranges::find_if(names, [&bundle](const QString &view) {
        return bundle.pathForResource(view, u"ui"_s).isNull();
    });
    return name == names.end() ? QString()
                               : bundle.bundlePath() + u"/Resources/"_s + *name + u".ui"_s;
}

/// Takes over the bundle's rules. The place of the first row that is none; null when all are.
QString wrongRule(PlugInLoad &load)
{
    AttributeRules read = attributeRules(load.bundle->infoValue(kPDEStandardAttributesKey));
    load.attributeRules = std::move(read.rules);
    return read.wrongRow == 0
               ? QString()
               : u"%1/Info.json: %2[%3]"_s.arg(load.bundle->bundlePath(), kPDEStandardAttributesKey,
                                               QString::number(read.wrongRow - 1));
}

// The interface identifier up to its version.
QString withoutVersion(const QString &identifier)
{
    return identifier.section(u'/', 0, -2);
}

std::optional<PlugInFault> checkIdentifier(const QString &found, const QString &bundlePath)
{
    const auto wanted = QLatin1String(PDEPlugIn_iid);
    if (found == wanted)
        return std::nullopt;
    const bool related = withoutVersion(found) == withoutVersion(wanted);
    return plugInFault(related ? PlugInFaultReason::OtherInterfaceVersion
                               : PlugInFaultReason::NotAPlugIn,
                       bundlePath, u"interface \"%1\", wanted \"%2\""_s.arg(found, wanted));
}

std::optional<PlugInFault> instantiate(PlugInLoad &load, const QString &library)
{
    using enum PlugInFaultReason;
    const QString path = load.bundle->bundlePath();
    QPluginLoader loader(library);
    // Code of the library may be reachable (registered transformers) after the panels are gone.
    loader.setLoadHints(QLibrary::PreventUnloadHint);
    const QString found = loader.metaData().value("IID"_L1).toString();
    if (auto refused = checkIdentifier(found, path))
        return refused;
    QObject *root = loader.instance();
    if (!root)
        return plugInFault(LoadFailed, path, loader.errorString());
    load.plugIn = qobject_cast<PDEPlugIn *>(root);
    if (!load.plugIn)
        return plugInFault(NotAPlugIn, path, library + u": its object lacks the interface"_s);
    if (load.plugIn->initWithBundle(load.bundle.get()))
        return std::nullopt;
    load.plugIn = nullptr;
    return plugInFault(InitRefused, path, library + u": initWithBundle answered no"_s);
}

PlugInFault noInfoDictionary(const QString &path)
{
    return plugInFault(PlugInFaultReason::NoInfoDictionary, path,
                       u"no readable "_s + path + u"/Info.json"_s);
}

} // namespace

QString plugInsFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' +
                           QLatin1String(VELKARO_PRIVATE_FROM_BIN) + u"/PlugIns"_s);
}

QString ownBundlePath()
{
    return plugInsFolder() + u'/' + QLatin1String(VELKARO_OWN_BUNDLE);
}

// Filters of names would have the toolkit load all that regular expressions need.
QStringList bundlesIn(const QString &folder)
{
    const QDir bundles(folder);
    QStringList paths;
    for (const QString &name : bundles.entryList(QDir::Dirs, QDir::Name))
        if (name.endsWith(".bundle"_L1, Qt::CaseInsensitive))
            paths += bundles.absoluteFilePath(name);
    return paths;
}

BundleChoice chooseBundle(const QString &folder, const PrinterFacts &facts)
{
    using enum PlugInFaultReason;
    QList<BundleCandidate> candidates;
    QStringList unreadable;
    for (const QString &path : bundlesIn(folder)) {
        const auto bundle = Bundle::open(path);
        if (bundle->infoDictionary())
            candidates += {bundle->bundlePath(), bundle->infoValue(kPDEPrintersKey)};
        else
            unreadable += bundle->bundlePath();
    }
    const QString best = bestBundle(candidates, facts);
    if (!best.isNull())
        return {best, std::nullopt};
    if (!unreadable.isEmpty())
        return {QString(), noInfoDictionary(unreadable.constFirst())};
    if (candidates.isEmpty())
        return {QString(), plugInFault(BundleMissing, folder, u"no bundle in "_s + folder)};
    return {};
}

// Links are followed once: what is loaded is what was looked at.
PlugInLoad loadPlugIn(const QString &bundlePath, const QVariantMap &info)
{
    using enum PlugInFaultReason;
    PlugInLoad load;
    const QString path = QFileInfo(bundlePath).canonicalFilePath();
    if (!QFileInfo(path).isDir()) {
        load.fault = plugInFault(BundleMissing, bundlePath, u"no such folder: "_s + bundlePath);
        return load;
    }
    load.bundle = Bundle::open(path);
    if (!load.bundle->infoDictionary()) {
        load.fault = noInfoDictionary(path);
        return load;
    }
    load.bundle->overrideInfo(info);
    const QString named = libraryOf(*load.bundle);
    const QString library = QFileInfo(named).canonicalFilePath();
    if (named.isNull() || !QFileInfo(library).isFile())
        load.fault = plugInFault(LibraryMissing, path, u"no library \"%1\""_s.arg(named));
    else if (const QString place = placeOpenToOthers(path, library); !place.isNull())
        load.fault = plugInFault(OpenToOthers, place, u"others may write to "_s + place);
    else if (const QString view = missingView(*load.bundle); !view.isNull())
        load.fault = plugInFault(ViewMissing, view, u"no such file: "_s + view);
    else if (const QString row = wrongRule(load); !row.isNull())
        load.fault = plugInFault(WrongEntry, row, u"no rule: "_s + row);
    else
        load.fault = instantiate(load, library);
    return load;
}

PlugInLoad loadPlugInFor(ppd_file_t *ppd, const QVariantMap &info)
{
    const BundleChoice choice = chooseBundle(plugInsFolder(), printerFacts(ppd));
    if (choice.path.isNull())
        return {nullptr, nullptr, {}, choice.fault};
    return loadPlugIn(choice.path, info);
}
