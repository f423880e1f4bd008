#pragma once

#include "tests/printserver/PrintServer.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

/// A print server with the queue "photo", a full A3 printer, and documents to print there.
class PrintServerFixture : public testing::Test
{
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    void SetUp() override;

    static PrintServer &server() { return *s_server; }

    /// A PDF of one page in the test's folder.
    QString pdf(const QString &name = QStringLiteral("document.pdf"));

    QString inFolder(const QString &name) const { return m_folder.filePath(name); }

    /// The numbers of the jobs that came to the queue since the test began.
    QList<int> newJobs() const;

    /// What the queue's printer has been sent.
    QByteArray printed() const;

private:
    static PrintServer *s_server;
    QTemporaryDir m_folder;
    QList<int> m_before;
};
