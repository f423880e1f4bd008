#pragma once

#include "dialog/cups/QueuePPD.h"
#include "dialog/job/JobRequest.h"
#include "dialog/work/CallGuard.h"
#include "tests/printserver/PrintServer.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

/// A real server for all tests of the program: the queue "photo", which is the default one, with
/// the PPD of a sample printer; "raw" without a PPD; "closed", which takes no jobs; and the class
/// "group" of "photo".
class Server : public testing::Test
{
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    void SetUp() override { ASSERT_NE(s_server, nullptr); }

    /// A new document of one page, with the text in a comment.
    Documents document(const QByteArray &text);

    /// A job of one document for the queue.
    JobRequest job(const QString &queue);

    inline static PrintServer *s_server = nullptr;
    QTemporaryDir m_folder;
    CallGuard m_guard;

private:
    int m_documents = 0;
};

/// What the PPD calls its printer; why it cannot be opened otherwise.
QString nickname(const QueuePPD &queue);
