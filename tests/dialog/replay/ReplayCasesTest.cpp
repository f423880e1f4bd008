// Whole scripts, each a file in cases/ whose events say what they expect.
#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"
#include "tests/built/BuiltFiles.h"
#include "tests/dialog/replay/JsonSubset.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace Qt::StringLiterals;

namespace {

class ReplayCase : public testing::TestWithParam<const char *>
{
protected:
    /// A folder of its own with the sample PPDs in it.
    ReplayCase() : m_folder(m_scratch.path())
    {
        const QDir samples(samplePPDFolder());
        for (const QString &name : samples.entryList({u"*.ppd"_s}))
            QFile::link(samples.filePath(name), m_folder.filePath(name));
    }

    void runLine(const QByteArray &text, int number)
    {
        const ReplayLine line = readReplayLine(text, m_folder);
        ASSERT_TRUE(line.error.isNull()) << number << ": " << line.error.toStdString();
        if (!line.event)
            return;
        const ReplaySession::Outcome outcome = m_session.run(*line.event);
        ASSERT_TRUE(outcome.fatal.isNull()) << number << ": " << outcome.fatal.toStdString();
        const QJsonObject actual = QJsonDocument::fromJson(outcome.line).object();
        const QJsonObject expected = QJsonDocument::fromJson(text).object()["expect"_L1].toObject();
        EXPECT_EQ(missingParts(expected, actual).join(u'\n').toStdString(), "")
            << "in line " << number;
        const bool mayFail = expected.contains("error"_L1) || expected.contains("result"_L1);
        EXPECT_TRUE(mayFail || !actual.contains("error"_L1))
            << "in line " << number << ": " << actual["error"_L1].toString().toStdString();
    }

    QTemporaryDir m_scratch;
    QDir m_folder;
    ReplaySession m_session;
};

} // namespace

TEST_P(ReplayCase, DoesWhatItsEventsExpect)
{
    QFile script(QStringLiteral(CASE_FOLDER "/") + QLatin1String(GetParam()) + u".jsonl"_s);
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    int events = 0;
    for (int number = 1; !script.atEnd(); ++number, ++events)
        ASSERT_NO_FATAL_FAILURE(runLine(script.readLine(), number));
    EXPECT_GT(events, 0);
    const QString picture = m_folder.filePath(u"preview.png"_s);
    EXPECT_TRUE(!QFile::exists(picture) || QImage(picture).size() == QSize(192, 144));
}

INSTANTIATE_TEST_SUITE_P(Scripts, ReplayCase,
                         testing::Values("everyday", "alerts", "enhancement", "refusals", "host",
                                         "window-height", "two-panels"),
                         [](const auto &testCase) {
                             std::string name = testCase.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });
