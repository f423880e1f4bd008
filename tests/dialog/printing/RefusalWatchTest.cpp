#include "dialog/printing/RefusalWatch.h"

#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

HostCallback::Call answer(const QString &keyword, const QString &choice, bool accepted)
{
    return {HostCallback::Call::Kind::WillChangePPDOptionKeyValue, keyword, choice, accepted};
}

struct Answers
{
    const char *behaviour;
    QList<HostCallback::Call> calls;
    bool isRefused = false;
};

class RefusalWatching : public testing::TestWithParam<Answers>
{
protected:
    RefusalWatching()
    {
        SessionOptions options;
        options.ppdPath = m_folder.filePath(u"the.ppd"_s);
        options.bundlePath = QLatin1String(FIXTURE_FOLDER) + u"/Spy.bundle"_s;
        writeFile(options.ppdPath, smallPrinter().text());
        m_session = *HostSession::open(options);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<HostSession> m_session;
};

TEST_P(RefusalWatching, LooksAtTheAnswersToItsOwnChoice)
{
    RefusalWatch watch(*m_session, u"Finish"_s, u"Shiny"_s);
    for (const HostCallback::Call &call : GetParam().calls)
        watch.didAnswer(call);
    EXPECT_EQ(watch.isRefused(), GetParam().isRefused);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusalWatching,
    testing::Values(
        Answers{"NothingAsked", {}}, Answers{"Accepted", {answer(u"Finish"_s, u"Shiny"_s, true)}},
        Answers{"Refused", {answer(u"Finish"_s, u"Shiny"_s, false)}, true},
        Answers{"RefusedInOtherLetters", {answer(u"Finish"_s, u"SHINY"_s, false)}, true},
        Answers{"AnotherRefused", {answer(u"Finish"_s, u"Matt"_s, false)}},
        Answers{"AnotherKeywordRefused", {answer(u"Weight"_s, u"Shiny"_s, false)}},
        Answers{"BothRefused",
                {answer(u"Finish"_s, u"Shiny"_s, false), answer(u"Weight"_s, u"Heavy"_s, false)},
                true},
        Answers{"AcceptedAfterAll",
                {answer(u"Finish"_s, u"Shiny"_s, false), answer(u"Weight"_s, u"Light"_s, true),
                 answer(u"Finish"_s, u"Shiny"_s, true)}}),
    CaseName());

} // namespace
