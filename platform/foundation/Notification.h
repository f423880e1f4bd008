#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

/// What is posted on a notification centre.
struct Notification
{
    QString name; ///< what it tells
    /// Who it is about; compared by address only, never dereferenced. Null: nobody.
    const void *object = nullptr;
    /// None, or the entries that travel with it.
    std::optional<QVariantMap> userInfo;
};
