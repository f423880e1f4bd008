#include "tests/resources/Places.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace places {

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

QByteArray contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

QJsonObject jsonObject(const QString &path)
{
    const QJsonDocument document = QJsonDocument::fromJson(contents(path));
    EXPECT_TRUE(document.isObject()) << qPrintable(path);
    return document.object();
}

} // namespace places
