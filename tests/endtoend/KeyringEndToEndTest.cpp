// Passwords in the desktop's keyring.
#include "dialog/window/KeptPasswords.h"
#include "tests/endtoend/SecretStore.h"
#include "tests/endtoend/SecretsFixture.h"
#include "tests/support/QStringPrinting.h"

#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

class SecretsInAKeyring : public Secrets
{
protected:
    void SetUp() override
    {
        Secrets::SetUp();
        ASSERT_EQ(m_store.fault(), QString());
    }

    /// Says the password, and whether it is to be kept.
    static void answerAndKeep(PasswordDialog &sheet, const QString &password, bool keep)
    {
        auto &box = part<QCheckBox>(sheet, "keepPassword");
        ASSERT_TRUE(box.isVisible());
        if (box.isChecked() != keep)
            box.click();
        answer(sheet, password);
    }

    /// As the next run of the program: what this one knows is forgotten.
    static void beginAnew() { forgetPasswords(); }

    SecretStore m_store;
};

TEST_F(SecretsInAKeyring, AreKeptWhereThatIsWantedAndAreRightAndNotAskedForAgain)
{
    {
        DialogWindow window(wishes());
        window.start();
        window.show();
        PasswordDialog *sheet = sheetIn(window);
        ASSERT_NE(sheet, nullptr);
        answerAndKeep(*sheet, u"wrong"_s, true);
        sheet = sheetIn(window);
        ASSERT_NE(sheet, nullptr);
        EXPECT_EQ(m_store.kept(), QList<QByteArray>()) << "of a wrong one";
        answerAndKeep(*sheet, kSecret, true);
        ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_store.kept().size() == 1; }, kLongestAnswer));
    }
    beginAnew();
    DialogWindow window(wishes());
    window.start();
    window.show();
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
    EXPECT_EQ(window.state(), DialogWindow::State::Ready)
        << window.notice().sentence().toStdString();
    EXPECT_TRUE(window.findChildren<PasswordDialog *>().isEmpty());
}

TEST_F(SecretsInAKeyring, AreNotKeptUnasked)
{
    DialogWindow window(wishes());
    window.start();
    window.show();
    PasswordDialog *sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    EXPECT_FALSE(part<QCheckBox>(*sheet, "keepPassword").isChecked());
    answerAndKeep(*sheet, kSecret, false);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
    EXPECT_EQ(m_store.kept(), QList<QByteArray>());
}

TEST_F(SecretsInAKeyring, ThatAreWrongByNowAreAskedForOnceMore)
{
    QByteArray old = "old";
    keepInKeyring({.server = m_front.address()},
                  {.user = u"anna"_s, .password = Secret::takeFrom(old)});
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_store.kept().size() == 1; }, kLongestAnswer));
    DialogWindow window(wishes());
    window.start();
    window.show();
    PasswordDialog *sheet = sheetIn(window);
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(textOf(*sheet).startsWith(u"The user name or the password was not right.\n"_s));
    answerAndKeep(*sheet, kSecret, true);
    ASSERT_TRUE(waitWhile(window, DialogWindow::State::Searching));
    EXPECT_EQ(window.state(), DialogWindow::State::Ready);
    EXPECT_EQ(m_store.kept().size(), 1) << "in the place of the old one";
}

} // namespace
