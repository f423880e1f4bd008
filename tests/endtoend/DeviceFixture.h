#pragma once

#include "tests/printserver/PrintServer.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

/// A print server whose printers do what the test wants: a queue of each behaviour below, named by
/// it, prints to a backend that behaves so.
///
///   finish     takes the job
///   empty      reports an empty tray, and goes on when continueDevices() was called
///   retry      cannot be reached; the server holds the job to try it again
///   password   asks who prints, and prints for "anna", whose password is "s3cret"
///   hold       has the job held
///   stop       has the printer stopped
///   cancel     gives the job up
class DeviceFixture : public testing::Test
{
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    void SetUp() override;

    /// A job that is left would be in the way of the next one.
    void TearDown() override;

    static PrintServer &server() { return *s_server; }

    /// Sends a job of one page to the queue. Its number; 0 when it was not taken.
    int print(const QString &queue);

    /// A document of one page.
    QString document();

    /// Lets the devices that wait go on, now and until the test ends.
    void continueDevices();

private:
    static PrintServer *s_server;
    QTemporaryDir m_folder;
};
