#pragma once

#include "tests/support/Files.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QImageWriter>

#include <gtest/gtest.h>

/// A file in a folder of its own, gone with the object.
class TestFile
{
public:
    explicit TestFile(const QByteArray &contents) { replace(contents); }

    void replace(const QByteArray &contents) { writeFile(path(), contents); }

    TestFile(const QImage &picture, const QByteArray &format, int compression = 0)
    {
        QImageWriter writer(path(), format);
        writer.setCompression(compression);
        EXPECT_TRUE(writer.write(picture)) << qPrintable(writer.errorString());
    }

    QString path() const { return m_folder.filePath(QStringLiteral("picture")); }

    QByteArray contents() const { return readFile(path()); }

private:
    QTemporaryDir m_folder;
};
