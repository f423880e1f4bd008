#pragma once

#include <QtCore/QString>

/// Why a plug-in cannot be used, in the order in which it is found out.
enum class PlugInFaultReason {
    BundleMissing,
    NoInfoDictionary,
    LibraryMissing,
    OpenToOthers,          ///< somebody else may change what would run here
    ViewMissing,           ///< one that the bundle says it has
    WrongEntry,            ///< of Info.json
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

/// The fault with its sentence. `path` is what the sentence names: mostly the bundle's.
PlugInFault plugInFault(PlugInFaultReason reason, const QString &path, const QString &log);
