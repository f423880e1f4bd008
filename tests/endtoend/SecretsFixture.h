#pragma once

#include "dialog/window/DialogWindow.h"
#include "dialog/window/PasswordDialog.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/endtoend/DeviceFixture.h"
#include "tests/scriptedserver/PasswordDemand.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

inline constexpr int kLongestAnswer = 20000; // ms
inline const QString kSecret = QStringLiteral("s3cret");

/// The server lets nobody through but "anna" with that password; so does the device of the queue
/// "password", which has the server hold the job.
class Secrets : public DeviceFixture
{
protected:
    Secrets()
        : m_front(passwordDemand(PasswordScheme::Digest, "anna", kSecret.toUtf8(), server().port()))
    {
        UserDefaults::standardUserDefaults().setFolder(QString());
    }
    ~Secrets() override
    {
        setPasswordAsker(nullptr);
        forgetPasswords();
    }

    DialogWishes wishes()
    {
        DialogWishes wishes;
        wishes.server = m_front.address();
        wishes.queue = QStringLiteral("finish");
        wishes.files = {document()};
        return wishes;
    }

    /// The server knows beforehand that the printer behind "password" asks who prints.
    static bool wantPassword()
    {
        return server().lpadmin({QStringLiteral("-p"), QStringLiteral("password"),
                                 QStringLiteral("-o"),
                                 QStringLiteral("auth-info-required=username,password")});
    }

    static PasswordDialog *sheetIn(const QWidget &window)
    {
        PasswordDialog *found = nullptr;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                for (PasswordDialog *one : window.findChildren<PasswordDialog *>())
                    found = one->isVisible() ? one : found;
                return found != nullptr;
            },
            kLongestAnswer));
        return found;
    }

    template <typename Widget> static Widget &part(const QWidget &parent, const char *name)
    {
        auto *found = parent.findChild<Widget *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    static QString textOf(const PasswordDialog &sheet)
    {
        return part<QLabel>(sheet, "passwordText").text();
    }

    static void answer(PasswordDialog &sheet, const QString &password)
    {
        auto &user = part<QLineEdit>(sheet, "passwordUser");
        user.clear();
        QTest::keyClicks(&user, QStringLiteral("anna"));
        QTest::keyClicks(&part<QLineEdit>(sheet, "passwordField"), password);
        QTest::mouseClick(&part<QAbstractButton>(sheet, "passwordOK"), Qt::LeftButton);
        EXPECT_FALSE(sheet.isVisible());
    }

    static bool waitWhile(const DialogWindow &window, DialogWindow::State state)
    {
        return QTest::qWaitFor([&] { return window.state() != state; }, kLongestAnswer);
    }

    const ScriptedServer m_front;
};
