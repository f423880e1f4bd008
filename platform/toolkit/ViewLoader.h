#pragma once

#include "platform/Export.h"
#include "platform/foundation/ObservableDictionary.h"
#include "platform/toolkit/ViewConnections.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <memory>

/// A view that has been loaded. Owns all of it, wherever parts of it have been put since.
class VELKARO_PLATFORM_EXPORT LoadedView
{
public:
    /// Made by loadView(). Takes the root over.
    LoadedView(QWidget *root, std::unique_ptr<ObservableDictionary> content,
               const QHash<QString, QWidget *> &outlets);
    ~LoadedView();
    LoadedView(const LoadedView &) = delete;
    LoadedView &operator=(const LoadedView &) = delete;

    /// The dictionary that the view's controls are bound to.
    ObservableDictionary *content() const { return m_content.get(); }

    /// The widgets that became outlets of the owner, by name.
    QHash<QString, QWidget *> outlets() const;

    /// Whether the view binds the outlet's enabled state.
    bool bindsEnabled(const QWidget *outlet) const { return m_enabledBound.contains(outlet); }

    /// Whether the view binds the colour of the outlet's text.
    bool bindsTextColor(const QWidget *outlet) const { return m_textColorBound.contains(outlet); }

private:
    std::unique_ptr<ObservableDictionary> m_content;
    QPointer<QWidget> m_root;
    QHash<QString, QPointer<QWidget>> m_outlets;
    QSet<const QWidget *> m_enabledBound;
    QSet<const QWidget *> m_textColorBound;
};

/// Loads a view resource (a .ui file of Qt Designer) and connects it to its owner:
///
///   - a widget whose name is an outlet of the owner becomes that outlet;
///   - the dynamic property `action` names the operation that a control's user signal calls;
///   - the dynamic properties `bind.*` bind controls to the view's dictionary (ViewBindings.h);
///   - the dynamic property `tag` is the control's tag (tagOf()).
///
/// Heights in it are points (PanelPoint.h).
///
/// Null when the file cannot be read or is no view; `error`, which may be null, then says why.
VELKARO_PLATFORM_EXPORT std::unique_ptr<LoadedView>
loadView(const QString &path, const ViewConnections &owner, QString *error = nullptr);

/// The tag of a control; 0 when it has none.
VELKARO_PLATFORM_EXPORT int tagOf(const QWidget *control);

/// The operation that a control's user signal calls, and the key of the view's dictionary that its
/// value is bound to, as the view resource names them; null without one.
VELKARO_PLATFORM_EXPORT QString actionOf(const QWidget *control);
VELKARO_PLATFORM_EXPORT QString boundKeyOf(const QWidget *control);

/// The number that a slider or a field shows; 0 for any other control.
VELKARO_PLATFORM_EXPORT double doubleValueOf(const QWidget *control);
