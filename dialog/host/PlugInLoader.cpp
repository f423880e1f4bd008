#include "dialog/host/PlugInLoader.h"

#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPlugIn.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// Indexed by PlugInFaultReason.
constexpr std::array<const char *, 8> kSentences = {
    QT_TRANSLATE_NOOP("PlugInLoader", "The printer's settings are missing: there is no plug-in "
                                      "at %1. Install Velkaro Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 is incomplete: it has no readable Info.json. "
                                      "Install Velkaro Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 is incomplete: its library is missing. "
                                      "Install Velkaro Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in is incomplete: %1 is missing. Install Velkaro "
                                      "Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "%1 is not a plug-in of this print dialog."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 was made for another version of this print "
                                      "dialog. Install the same version of both."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 could not be loaded."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 cannot be used with this print dialog."),
};

PlugInFault fault(PlugInFaultReason reason, const QString &bundlePath, const QString &log)
{
    const char *sentence = kSentences.at(static_cast<std::size_t>(reason));
    return {reason, QCoreApplication::translate("PlugInLoader", sentence).arg(bundlePath), log};
}

QString plugInsFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' +
                           QLatin1String(VELKARO_PRIVATE_FROM_BIN) + u"/PlugIns"_s);
}

QString libraryOf(const Bundle &bundle)
{
    const QString name = bundle.infoValue(u"CFBundleExecutable"_s).toString();
    const bool plain = !name.isEmpty() && !name.contains(u'/');
    return plain ? bundle.bundlePath() + u'/' + name : QString();
}

/// The path of a view that the bundle says it has, and has not; null when all are there.
QString missingView(const Bundle &bundle)
{
    const QStringList names = bundle.infoValue(u"VKViews"_s).toStringList();
    const auto name = std::ranges::find_if(names, [&bundle](const QString &view) {
        return bundle.pathForResource(view, u"ui"_s).isNull();
    });
    return name == names.end() ? QString()
                               : bundle.bundlePath() + u"/Resources/"_s + *name + u".ui"_s;
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
    return fault(related ? PlugInFaultReason::OtherInterfaceVersion : PlugInFaultReason::NotAPlugIn,
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
        return fault(LoadFailed, path, loader.errorString());
    load.plugIn = qobject_cast<PDEPlugIn *>(root);
    if (!load.plugIn)
        return fault(NotAPlugIn, path, library + u": its object lacks the interface"_s);
    if (load.plugIn->initWithBundle(load.bundle.get()))
        return std::nullopt;
    load.plugIn = nullptr;
    return fault(InitRefused, path, library + u": initWithBundle answered no"_s);
}

} // namespace

QString installedBundlePath()
{
    const QDir folder(plugInsFolder());
    const QStringList names = folder.entryList({u"*.bundle"_s}, QDir::Dirs, QDir::Name);
    return names.isEmpty() ? QString() : folder.absoluteFilePath(names.constFirst());
}

PlugInLoad loadPlugIn(const QString &bundlePath, const QVariantMap &info)
{
    using enum PlugInFaultReason;
    const QString path = bundlePath.isNull() ? installedBundlePath() : bundlePath;
    PlugInLoad load;
    if (path.isNull() || !QFileInfo(path).isDir()) {
        const QString shown = path.isNull() ? plugInsFolder() : path;
        load.fault = fault(BundleMissing, shown, u"no such folder: "_s + shown);
        return load;
    }
    load.bundle = Bundle::open(path);
    if (!load.bundle->infoDictionary()) {
        load.fault = fault(NoInfoDictionary, path, u"no readable "_s + path + u"/Info.json"_s);
        return load;
    }
    load.bundle->overrideInfo(info);
    const QString library = libraryOf(*load.bundle);
    if (library.isNull() || !QFileInfo(library).isFile())
        load.fault = fault(LibraryMissing, path, u"no library \"%1\""_s.arg(library));
    else if (const QString view = missingView(*load.bundle); !view.isNull())
        load.fault = fault(ViewMissing, view, u"no such file: "_s + view);
    else
        load.fault = instantiate(load, library);
    return load;
}
