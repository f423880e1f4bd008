#pragma once

#include "dialog/host/AttributeRules.h"
#include "dialog/host/PlugInFault.h"
#include "dialog/host/PrinterMatch.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>
#include <optional>

class Bundle;
class PDEPlugIn;

/// What loading a plug-in came to: the plug-in in its bundle, a fault, or nothing.
struct PlugInLoad
{
    /// Null when no bundle is for the printer. Keep it as long as panels of the plug-in live: they
    /// find their resources through it.
    std::shared_ptr<Bundle> bundle;
    /// Null with a fault, and where no bundle is for the printer. Owned by its library, which stays
    /// loaded until the process ends.
    PDEPlugIn *plugIn = nullptr;
    /// The standard attributes that go with its choices.
    QList<AttributeRule> attributeRules;
    std::optional<PlugInFault> fault;
};

/// Where bundles are installed, as seen from the program.
QString plugInsFolder();

/// The paths of the folder's bundles, by name.
QStringList bundlesIn(const QString &folder);

/// The bundle that the program comes with; it need not be there.
QString ownBundlePath();

/// Which of a folder's bundles is for a printer.
struct BundleChoice
{
    QString path; ///< null: none, which is no fault by itself
    /// Only without a path: the folder has no bundle at all, or one that cannot say what it is for.
    std::optional<PlugInFault> fault;
};
BundleChoice chooseBundle(const QString &folder, const PrinterFacts &facts);

/// Loads the plug-in of the bundle at the path and initialises it. `info` replaces entries of the
/// bundle's information dictionary for this load alone.
PlugInLoad loadPlugIn(const QString &bundlePath, const QVariantMap &info = {});

/// Loads the plug-in of the installed bundle that is for the PPD's printer. Neither a bundle nor a
/// fault when there is none: the printer has no panels.
PlugInLoad loadPlugInFor(ppd_file_t *ppd, const QVariantMap &info = {});
