#pragma once

#include "platform/Export.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <functional>

/// What the owner of a view wants connected when the view is loaded.
///
/// An outlet is a pointer of the owner that comes to point to the widget of the same name; it stays
/// null when the view has no such widget or one of another class. A name may have several. An
/// action is an operation of the owner that a control of the view names; it gets the control as its
/// sender.
class VELKARO_PLATFORM_EXPORT ViewConnections
{
public:
    /// An operation of the owner.
    using Action = std::function<void(QWidget *sender)>;
    /// What makes a widget of a class of the owner's.
    using Factory = std::function<QWidget *(QWidget *parent)>;

    /// Has `pointer`, which must outlive the view, point to the widget of the name.
    template <typename Widget> void outlet(const QString &name, Widget *&pointer)
    {
        m_outlets[name].append([&pointer](QWidget *widget) {
            pointer = dynamic_cast<Widget *>(widget);
            return pointer != nullptr;
        });
    }

    /// The same for a pointer that becomes null when its widget is destroyed.
    template <typename Widget> void outlet(const QString &name, QPointer<Widget> &pointer)
    {
        m_outlets[name].append([&pointer](QWidget *widget) {
            pointer = dynamic_cast<Widget *>(widget);
            return !pointer.isNull();
        });
    }

    /// Gives the operation the name that controls call it by.
    void action(const QString &name, Action action) { m_actions[name] = std::move(action); }

    /// Makes a widget class of the owner's own known to the loader.
    template <typename Widget> void widgetClass(const QString &className)
    {
        m_factories.insert(className, [](QWidget *parent) { return new Widget(parent); });
    }

    /// Connects the outlets of the widget's name, if there are any. False without one.
    bool connectOutlet(QWidget *widget) const;

    /// The action of the name; empty when the owner has none.
    Action actionNamed(const QString &name) const { return m_actions.value(name); }

    /// A new widget of the owner's own class; null for a class that it did not make known.
    QWidget *create(const QString &className, QWidget *parent) const;

private:
    QHash<QString, QList<std::function<bool(QWidget *)>>> m_outlets;
    QHash<QString, Action> m_actions;
    QHash<QString, Factory> m_factories;
};
