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

struct Script
{
    const char *name;
    QSize picture; ///< of the one that it saves; 0 x 0: it saves none
};

void PrintTo(const Script &script, std::ostream *out)
{
    *out << script.name;
}

class ReplayCase : public testing::TestWithParam<Script>
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
        const auto event = readReplayLine(text, m_folder);
        ASSERT_TRUE(event) << number << ": " << event.sentence().toStdString();
        if (!*event)
            return;
        ++m_events;
        const auto line = m_session.run(**event);
        ASSERT_TRUE(line) << number << ": " << line.sentence().toStdString();
        const QJsonObject actual = QJsonDocument::fromJson(*line).object();
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
    int m_events = 0;
};

} // namespace

TEST_P(ReplayCase, DoesWhatItsEventsExpect)
{
    QFile script(QStringLiteral(CASE_FOLDER "/") + QLatin1String(GetParam().name) + u".jsonl"_s);
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    for (int number = 1; !script.atEnd(); ++number)
        ASSERT_NO_FATAL_FAILURE(runLine(script.readLine(), number));
    EXPECT_GT(m_events, 0);
    EXPECT_EQ(QImage(m_folder.filePath(u"preview.png"_s)).size(), GetParam().picture);
}

INSTANTIATE_TEST_SUITE_P(Scripts, ReplayCase,
                         testing::Values(Script{"everyday", {0, 0}}, Script{"alerts", {0, 0}},
                                         Script{"enhancement", {192, 144}},
                                         Script{"refusals", {0, 0}}, Script{"host", {0, 0}},
                                         Script{"window-height", {0, 0}},
                                         Script{"two-panels", {0, 0}}),
                         [](const auto &testCase) {
                             std::string name = testCase.param.name;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });
