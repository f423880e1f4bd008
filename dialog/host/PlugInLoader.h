#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>
#include <optional>

class Bundle;
class PDEPlugIn;

/// Why a plug-in cannot be used, in the order in which it is found out.
enum class PlugInFaultReason {
    BundleMissing,
    NoInfoDictionary,
    LibraryMissing,
    ViewMissing,           ///< one that the bundle says it has
    NotAPlugIn,            ///< a library, but none of this interface
    OtherInterfaceVersion, ///< found out before any code of the library runs
    LoadFailed,
    InitRefused,
};

struct PlugInFault
{
    PlugInFaultReason reason = PlugInFaultReason::BundleMissing;
    QString sentence; ///< for people, localised
    QString log;      ///< for a bug report: the path, and what the system said
};

/// What loading a plug-in came to: the plug-in in its bundle, or a fault.
struct PlugInLoad
{
    /// Keep it as long as panels of the plug-in live: they find their resources through it.
    std::shared_ptr<Bundle> bundle;
    /// Null with a fault. Owned by its library, which stays loaded until the process ends.
    PDEPlugIn *plugIn = nullptr;
    std::optional<PlugInFault> fault;
};

/// The bundle that is installed beside the program, the first by name; null without one.
QString installedBundlePath();

/// Loads the plug-in of the bundle at the path (a null path: the installed one) and initialises it.
/// `info` replaces entries of the bundle's information dictionary for this load alone.
PlugInLoad loadPlugIn(const QString &bundlePath = QString(), const QVariantMap &info = {});
