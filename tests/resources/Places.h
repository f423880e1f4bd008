#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

// Where the build puts the resources, and their contents.
namespace places {

// A file of the bundle, its help books and the sample folder, as a path.
QString bundleFile(const QString &name);
QString bundleResource(const QString &name);
QString helpFile(const QString &name);
QString sharedFile(const QString &name);

// What a file holds. Fails the test, and gives nothing, when it cannot be read or is no JSON
// object.
QByteArray contents(const QString &path);
QJsonObject jsonObject(const QString &path);

} // namespace places
