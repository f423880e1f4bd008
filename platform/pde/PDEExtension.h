#pragma once

#include <QtCore/QLatin1String>

// A panel may implement optional interfaces beside PDEPanel. Each has an identifier that carries
// its version, and whoever asks for another version gets none: two libraries that were built
// against different versions of a header never call each other through it.

/// The panel's side of the interface; null when it has none of this version. Valid as long as the
/// panel.
template <typename Interface, typename Panel> Interface *panelExtension(Panel &panel)
{
    return static_cast<Interface *>(panel.extension(Interface::kIdentifier));
}

/// What PDEPanel::extension() answers in a panel that implements these interfaces and no others:
///
///   void *extension(QLatin1String identifier) override
///   {
///       return extensionAmong<PDEPanelControls, PDEPanelInspection>(this, identifier);
///   }
template <typename... Interfaces, typename Panel>
void *extensionAmong(Panel *panel, QLatin1String identifier)
{
    void *found = nullptr;
    // Each base has an address of its own within the panel.
    ((found = identifier == Interfaces::kIdentifier ? static_cast<Interfaces *>(panel) : found),
     ...);
    return found;
}
