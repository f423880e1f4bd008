#include "dialog/cups/Passwords.h"

#include "dialog/cups/Destinations.h"
#include "dialog/cups/JobSubmission.h"
#include "tests/dialog/cups/ServerFixture.h"
#include "tests/scriptedserver/PasswordDemand.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <cups/cups.h>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

/// What somebody answers, one answer after the other; null: he does not want to say it.
class ScriptedAsker : public PasswordAsker
{
public:
    explicit ScriptedAsker(QStringList answers) : m_answers(std::move(answers)) {}

    std::optional<Credentials> ask(const PasswordQuestion &question, CallGuard &) override
    {
        m_questions.push_back(question);
        QString answer = m_answers.isEmpty() ? QString() : m_answers.takeFirst();
        if (answer.isNull())
            return std::nullopt;
        return Credentials{.user = u"anna"_s, .password = Secret::takeFrom(answer)};
    }

    void keep(const PasswordQuestion &, const Credentials &right) override
    {
        m_kept += QString::fromUtf8(right.password.text());
    }

    std::vector<PasswordQuestion> m_questions;
    QStringList m_kept;

private:
    QStringList m_answers;
};

/// A queue whose server wants to know who prints: "anna", whose password is "right one".
class GuardedServer : public Server
{
protected:
    explicit GuardedServer(PasswordScheme scheme = PasswordScheme::Basic)
        : m_front(passwordDemand(scheme, "anna", "right one", s_server->port()))
    {}

    ~GuardedServer() override
    {
        setPasswordAsker(nullptr);
        forgetPasswords();
        cupsSetUser(nullptr);
    }

    std::shared_ptr<ScriptedAsker> answering(const QStringList &answers)
    {
        auto asker = std::make_shared<ScriptedAsker>(answers);
        setPasswordAsker(asker);
        return asker;
    }

    Result<JobReceipt> print()
    {
        const PasswordScope scope(PasswordPurpose::Printing, u"photo"_s);
        JobRequest request = job(u"photo"_s);
        request.server = m_front.address();
        return submitJob(request, m_guard);
    }

    const ScriptedServer m_front;
};

struct Answers
{
    const char *behaviour;
    PasswordScheme scheme;
    QStringList answers;
    int questions;
    QStringList kept;
    const char *sentence; ///< %1: the server; null: the job is accepted
};

void PrintTo(const Answers &row, std::ostream *out)
{
    *out << row.behaviour;
}

class Guarded : public GuardedServer, public testing::WithParamInterface<Answers>
{
protected:
    Guarded() : GuardedServer(GetParam().scheme) {}
};

TEST_P(Guarded, AsksUntilItKnows)
{
    const auto asker = answering(GetParam().answers);
    const QList<int> before = s_server->jobs(u"photo"_s);
    const auto receipt = print();
    EXPECT_EQ(receipt.sentence(),
              QString::fromUtf8(GetParam().sentence).replace(u"%1"_s, m_front.address()));
    EXPECT_EQ(s_server->jobs(u"photo"_s).size() - before.size(), GetParam().sentence ? 0 : 1);
    EXPECT_EQ(asker->m_questions.size(), static_cast<std::size_t>(GetParam().questions));
    for (std::size_t index = 0; index < asker->m_questions.size(); ++index) {
        const PasswordQuestion &question = asker->m_questions[index];
        EXPECT_EQ(question.server, m_front.address());
        EXPECT_EQ(question.queue, u"photo"_s);
        EXPECT_EQ(static_cast<int>(question.purpose), static_cast<int>(PasswordPurpose::Printing));
        EXPECT_EQ(question.isAgain, index > 0);
        EXPECT_FALSE(question.isReadable) << "nothing leaves this machine";
    }
    EXPECT_EQ(asker->m_kept, GetParam().kept);
    if (!GetParam().sentence) {
        EXPECT_EQ(receipt->notes, QStringList());
    }
}

const QString kRight = u"right one"_s;
const QString kWrong = u"wrong"_s;
constexpr auto kNobody = "Nothing was printed on photo: The print server %1 lets nobody print to "
                         "photo without a password.";
constexpr auto kNotAccepted = "Nothing was printed on photo: The print server %1 does not accept "
                              "the user name and the password.";

INSTANTIATE_TEST_SUITE_P(
    Table, Guarded,
    testing::Values(
        Answers{"BasicRight", PasswordScheme::Basic, {kRight}, 1, {kRight}, nullptr},
        Answers{
            "BasicWrongThenRight", PasswordScheme::Basic, {kWrong, kRight}, 2, {kRight}, nullptr},
        Answers{"BasicThreeTimesWrong",
                PasswordScheme::Basic,
                {kWrong, kWrong, kWrong, kRight},
                3,
                {},
                kNotAccepted},
        Answers{"BasicNotAnswered", PasswordScheme::Basic, {}, 1, {}, kNobody},
        Answers{"BasicWrongAndNotAnswered", PasswordScheme::Basic, {kWrong}, 2, {}, kNotAccepted},
        Answers{"DigestRight", PasswordScheme::Digest, {kRight}, 1, {kRight}, nullptr},
        Answers{
            "DigestWrongThenRight", PasswordScheme::Digest, {kWrong, kRight}, 2, {kRight}, nullptr},
        Answers{"DigestThreeTimesWrong",
                PasswordScheme::Digest,
                {kWrong, kWrong, kWrong, kRight},
                3,
                {},
                kNotAccepted}),
    CaseName());

TEST_F(GuardedServer, KnowsWhoWasThereBefore)
{
    const auto asker = answering({kRight});
    ASSERT_TRUE(print());
    ASSERT_TRUE(print());
    const auto list = listDestinations(m_front.address(), m_guard);
    EXPECT_TRUE(list) << list.sentence().toStdString();
    EXPECT_EQ(asker->m_questions.size(), 1u);
}

TEST_F(GuardedServer, AsksNobodyForWhatNobodyWaitsFor)
{
    const auto asker = answering({kRight});
    EXPECT_EQ(listDestinations(m_front.address(), m_guard).sentence(),
              u"The print server %1 answers nobody without a password."_s.arg(m_front.address()));
    EXPECT_TRUE(asker->m_questions.empty());
}

TEST_F(GuardedServer, LeavesNoCoreDumpWhileAPasswordIsKnown)
{
    ASSERT_EQ(prctl(PR_GET_DUMPABLE), 1);
    answering({kRight});
    ASSERT_TRUE(print());
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0);
    forgetPasswords();
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 1);
}

} // namespace
