#include "platform/toolkit/HelpManager.h"

#include "platform/foundation/PreferredLanguages.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

class HelpManagerTest : public testing::Test
{
protected:
    HelpManagerTest()
    {
        QDir(folder.path()).mkpath(u"en"_s);
        QDir(folder.path()).mkpath(u"ja"_s);
        write(u"Info.json"_s,
              R"({"CFBundleHelpBookName": "Test Help", "HPDBookAccessPath": "index.html"})");
        write(u"en/index.html"_s, R"(<html><body><p>English</p><p><a name="VkHelpAnchor">Here</a>
              <a href="http://localhost/">away</a></p></body></html>)");
        write(u"ja/index.html"_s, R"(<html><head><title>Japanese Title</title></head>
              <body><p>Japanese</p></body></html>)");
    }
    ~HelpManagerTest() override
    {
        delete manager.window();
        setPreferredLanguages({});
    }

    void write(const QString &name, const QByteArray &text)
    {
        writeFile(folder.filePath(name), text);
    }

    QTextBrowser *browser() const { return qobject_cast<QTextBrowser *>(manager.window()); }

    QTemporaryDir folder;
    HelpManager manager;
};

TEST_F(HelpManagerTest, OpensABookAtItsAnchor)
{
    setPreferredLanguages({u"en"_s});
    ASSERT_TRUE(manager.registerBook(folder.path()));
    EXPECT_EQ(manager.window(), nullptr);
    EXPECT_TRUE(manager.openHelpAnchor(u"VkHelpAnchor"_s, u"Test Help"_s));
    ASSERT_NE(browser(), nullptr);
    EXPECT_TRUE(browser()->isVisible());
    EXPECT_EQ(browser()->windowTitle(), u"Test Help"_s);
    EXPECT_EQ(browser()->source().fragment(), u"VkHelpAnchor"_s);
    EXPECT_TRUE(browser()->toPlainText().startsWith(u"English"_s));
}

TEST_F(HelpManagerTest, ShowsTheNextPageInTheSameWindow)
{
    setPreferredLanguages({u"en"_s});
    manager.registerBook(folder.path());
    manager.openHelpAnchor(u"VkHelpAnchor"_s, u"Test Help"_s);
    QWidget *first = manager.window();
    setPreferredLanguages({u"ja"_s});
    manager.openHelpAnchor(u"VkHelpAnchor"_s, u"Test Help"_s);
    EXPECT_EQ(manager.window(), first);
    EXPECT_EQ(browser()->toPlainText(), u"Japanese"_s);
    EXPECT_EQ(browser()->windowTitle(), u"Japanese Title"_s);
}

struct LanguageCase
{
    const char *behaviour;
    QStringList languages;
    QString folder;
};

class HelpLanguage : public HelpManagerTest, public testing::WithParamInterface<LanguageCase>
{};

const LanguageCase kLanguageCases[] = {
    {"English", {u"en"_s}, u"en"_s},
    {"Japanese", {u"ja"_s}, u"ja"_s},
    {"JapaneseOfARegion", {u"ja-US"_s}, u"ja"_s},
    {"TheFirstThatTheBookHas", {u"fr"_s, u"ja"_s}, u"ja"_s},
    {"EnglishWhereItHasNone", {u"fr"_s}, u"en"_s},
};

TEST_P(HelpLanguage, IsTheUsers)
{
    setPreferredLanguages(GetParam().languages);
    manager.registerBook(folder.path());
    const QUrl page = manager.pageOf(u"anchor"_s, u"Test Help"_s);
    EXPECT_EQ(page.toLocalFile(), folder.filePath(GetParam().folder + u"/index.html"_s));
    EXPECT_EQ(page.fragment(), u"anchor"_s);
}

INSTANTIATE_TEST_SUITE_P(Cases, HelpLanguage, testing::ValuesIn(kLanguageCases), CaseName());

struct BookCase
{
    const char *behaviour;
    QByteArray info;
};

class BadBook : public HelpManagerTest, public testing::WithParamInterface<BookCase>
{};

const BookCase kBookCases[] = {
    {"Empty", ""},
    {"BrokenOff", R"({"CFBundleHelpBookName": "Test)"},
    {"WithoutName", R"({"HPDBookAccessPath": "index.html"})"},
    {"WithoutFirstPage", R"({"CFBundleHelpBookName": "Test Help"})"},
    {"NameThatIsNoText", R"({"CFBundleHelpBookName": 7, "HPDBookAccessPath": "index.html"})"},
};

TEST_P(BadBook, IsNotRegistered)
{
    write(u"Info.json"_s, GetParam().info);
    EXPECT_FALSE(manager.registerBook(folder.path()));
    EXPECT_FALSE(manager.openHelpAnchor(u"VkHelpAnchor"_s, u"Test Help"_s));
    EXPECT_EQ(manager.window(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Cases, BadBook, testing::ValuesIn(kBookCases), CaseName());

TEST_F(HelpManagerTest, IsFalseForAMissingFolder)
{
    EXPECT_FALSE(manager.registerBook(folder.filePath(u"missing.help"_s)));
    EXPECT_FALSE(manager.registerBook(QString()));
}

TEST_F(HelpManagerTest, IsFalseForABookWithoutItsFirstPage)
{
    manager.registerBook(folder.path());
    QFile::remove(folder.filePath(u"en/index.html"_s));
    setPreferredLanguages({u"fr"_s});
    EXPECT_TRUE(manager.pageOf(u"a"_s, u"Test Help"_s).isEmpty());
    EXPECT_FALSE(manager.openHelpAnchor(u"a"_s, u"Test Help"_s));
}

TEST_F(HelpManagerTest, FollowsNoLinkOutOfTheBook)
{
    setPreferredLanguages({u"en"_s});
    manager.registerBook(folder.path());
    manager.openHelpAnchor(u"VkHelpAnchor"_s, u"Test Help"_s);
    const QUrl before = browser()->source();
    browser()->setSource(QUrl(u"http://localhost/"_s));
    EXPECT_EQ(browser()->source(), before);
}

TEST_F(HelpManagerTest, ForgetsItsWindowWhenTheUserClosesIt)
{
    setPreferredLanguages({u"en"_s});
    manager.registerBook(folder.path());
    manager.openHelpAnchor(u"VkHelpAnchor"_s, u"Test Help"_s);
    ASSERT_TRUE(QTest::qWaitForWindowActive(manager.window()));
    QTest::keyClick(manager.window(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(manager.window(), nullptr);
    EXPECT_TRUE(manager.openHelpAnchor(u"VkHelpAnchor"_s, u"Test Help"_s));
}

} // namespace
