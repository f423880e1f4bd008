#pragma once

#include "dialog/job/DocumentFile.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <gtest/gtest.h>

/// The documents at the paths, open. The test fails when one is none.
inline Documents openedDocuments(const QStringList &paths)
{
    const auto opened = openDocuments(paths);
    EXPECT_EQ(opened.sentence(), QString());
    return opened ? *opened : Documents();
}

/// All bytes of the document.
inline QByteArray bytesOf(const Document &document)
{
    QByteArray bytes;
    EXPECT_EQ(deliver(document,
                      [&](const char *piece, qint64 length) {
                          bytes.append(piece, length);
                          return true;
                      }),
              Delivery::Complete);
    return bytes;
}
