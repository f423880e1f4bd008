#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

// Where the build puts the resources.
// A file of the bundle, its help books and the sample folder, as a path.
QString bundleFile(const QString &name);
QString bundleResource(const QString &name);
QString helpFile(const QString &name);
QString sharedFile(const QString &name);

// Fails the test, and gives nothing, when the file cannot be read or is no JSON object.
QJsonObject jsonObject(const QString &path);
