#include "tests/resources/Places.h"

#include "tests/support/Files.h"

#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

QString bundleFile(const QString &name)
{
    return QStringLiteral(VELKARO_PRIVATE_FOLDER) + u"/PlugIns/VKInkQuality14.bundle/"_s + name;
}

QString bundleResource(const QString &name)
{
    return bundleFile(u"Resources/"_s + name);
}

QString helpFile(const QString &name)
{
    return QStringLiteral(VELKARO_PRIVATE_FOLDER) + u"/Help/"_s + name;
}

QString sharedFile(const QString &name)
{
    return QStringLiteral(VELKARO_SHARE_FOLDER) + u'/' + name;
}

QJsonObject jsonObject(const QString &path)
{
    const QJsonDocument document = QJsonDocument::fromJson(readFile(path));
    EXPECT_TRUE(document.isObject()) << qPrintable(path);
    return document.object();
}
