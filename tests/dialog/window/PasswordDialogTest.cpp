#include "dialog/window/PasswordDialog.h"

#include "dialog/window/KeptPasswords.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/TextRoom.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

PasswordQuestion questionOfAll()
{
    return {.purpose = PasswordPurpose::HeldJob,
            .server = u"print.example:631"_s,
            .queue = u"A & <b>B</b>\n"_s,
            .user = u"anna"_s,
            .isAgain = true,
            .isReadable = true,
            .needsDomain = true};
}

class Sheet : public testing::Test
{
protected:
    template <typename Widget> static Widget *part(const QWidget &parent, const char *name)
    {
        return parent.findChild<Widget *>(QLatin1String(name));
    }

    QWidget m_window;
};

TEST_F(Sheet, TellsWhatIsWantedAsItStands)
{
    const PasswordDialog sheet(questionOfAll(), true, &m_window);
    EXPECT_EQ(part<QLabel>(sheet, "passwordText")->text(),
              u"The user name or the password was not right.\n"
              "The print server print.example:631 holds the job until the printer behind "
              "A & <b>B</b>  knows who prints.\n"
              "The connection is not encrypted: others in the network may read the password."_s);
}

TEST_F(Sheet, GivesWhatWasTypedOnceAndKeepsNothing)
{
    PasswordDialog sheet(questionOfAll(), true, &m_window);
    sheet.show();
    QTest::keyClicks(part<QLineEdit>(sheet, "passwordDomain"), u"OFFICE"_s);
    QTest::keyClicks(part<QLineEdit>(sheet, "passwordField"), u"open sesame"_s);
    part<QCheckBox>(sheet, "keepPassword")->click();
    const Credentials answer = sheet.takeAnswer();
    EXPECT_EQ(answer.user, u"anna"_s);
    EXPECT_EQ(answer.domain, u"OFFICE"_s);
    EXPECT_STREQ(answer.password.text(), "open sesame");
    EXPECT_TRUE(answer.isToBeKept);
    EXPECT_EQ(part<QLineEdit>(sheet, "passwordField")->text(), QString());
}

TEST_F(Sheet, OffersNoKeyringWhereThereIsNone)
{
    PasswordDialog sheet({.server = u"s"_s, .queue = u"q"_s}, false, &m_window);
    sheet.show();
    EXPECT_FALSE(part<QCheckBox>(sheet, "keepPassword")->isVisible());
    EXPECT_EQ(part<QLineEdit>(sheet, "passwordDomain"), nullptr);
    EXPECT_FALSE(sheet.takeAnswer().isToBeKept);
}

TEST_F(Sheet, IsWholeInALargeFont)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(24);
    QApplication::setFont(large);
    PasswordDialog sheet(questionOfAll(), true, &m_window);
    sheet.show();
    QStringList cut;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (cut = cutTexts(sheet)).isEmpty(); }, 500))
        << cut.join(u'\n').toStdString();
    QApplication::setFont(before);
}

// --- The keyring ---------------------------------------------------------------------------------

struct Entry
{
    const char *behaviour;
    QByteArray entry;
    QStringList who; ///< user, domain, password; empty: it is none of ours
};

class KeptEntry : public testing::TestWithParam<Entry>
{};

TEST_P(KeptEntry, IsReadAsItWasKept)
{
    const QByteArray &entry = GetParam().entry;
    // A copy of its own: what is read is cleared.
    const std::optional<Credentials> kept =
        credentialsOf(QByteArray(entry.constData(), entry.size()));
    QStringList who;
    if (kept)
        who = {kept->user, kept->domain, QString::fromUtf8(kept->password.text())};
    EXPECT_EQ(who, GetParam().who);
    if (kept) {
        EXPECT_EQ(entryOf(*kept), entry);
        EXPECT_TRUE(kept->wasKept);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, KeptEntry,
    testing::Values(
        Entry{"WithoutADomain", "anna\n\nopen", {u"anna"_s, u""_s, u"open"_s}},
        Entry{"WithADomain", "anna\nOFFICE\nopen", {u"anna"_s, u"OFFICE"_s, u"open"_s}},
        Entry{"WithLinesInThePassword", "anna\n\na\nb\n", {u"anna"_s, u""_s, u"a\nb\n"_s}},
        Entry{"OfSomebodyElse", "just a password", {}}, Entry{"CutShort", "anna\nOFFICE", {}},
        Entry{"Empty", "", {}}),
    CaseName());

/// The real module, on a machine without the service.
TEST(Keyring, IsNotThereWithoutItsService)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    std::optional<bool> isThere;
    findKept({.server = u"s"_s}, [&](bool hasKeyring, const std::optional<Credentials> &kept) {
        isThere = hasKeyring;
        EXPECT_FALSE(kept);
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isThere.has_value(); }, 20000));
    EXPECT_FALSE(*isThere);
}

} // namespace
