#include "tests/resources/Places.h"
#include "tests/support/Files.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Page
{
    const char *book;
    const char *language;
};

void PrintTo(const Page &page, std::ostream *out)
{
    *out << page.book << '/' << page.language;
}

class HelpBooks : public testing::TestWithParam<Page>
{
protected:
    void SetUp() override
    {
        const QString path = u"%1.help/%2/index.html"_s.arg(QLatin1String(GetParam().book),
                                                            QLatin1String(GetParam().language));
        document.setHtml(QString::fromUtf8(readFile(helpFile(path))));
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            for (auto piece = block.begin(); !piece.atEnd(); ++piece)
                read(piece.fragment());
    }

    void read(const QTextFragment &fragment)
    {
        anchors << fragment.charFormat().anchorNames();
        if (!fragment.charFormat().anchorHref().isEmpty())
            links << fragment.charFormat().anchorHref();
    }

    QTextDocument document;
    QStringList anchors;
    QStringList links;
};

TEST_P(HelpBooks, BeginWithThePanelsAnchor)
{
    ASSERT_FALSE(anchors.isEmpty());
    EXPECT_EQ(anchors.first(), u"VkHelpAnchor"_s);
}

TEST_P(HelpBooks, LinkOnlyToTheirOwnSections)
{
    EXPECT_GE(links.size(), 5);
    for (const QString &link : std::as_const(links)) {
        EXPECT_TRUE(link.startsWith(u'#')) << qPrintable(link);
        EXPECT_TRUE(anchors.contains(link.mid(1))) << qPrintable(link);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Pages, HelpBooks,
    testing::Values(Page{"VKInkPrintSetting14", "de"}, Page{"VKInkPrintSetting14", "en"},
                    Page{"VKInkPrintSetting14", "fr"}, Page{"VKInkPrintSetting14", "ja"},
                    Page{"VKInkColorSetting", "de"}, Page{"VKInkColorSetting", "en"},
                    Page{"VKInkColorSetting", "fr"}, Page{"VKInkColorSetting", "ja"}),
    [](const auto &row) { return std::string(row.param.book) + "_" + row.param.language; });

// The sections, tables and rows of a page, by its tags; that of the whole page names its language.
QStringList structureOf(const QString &book, const QString &language)
{
    static const QRegularExpression tag(u"<[^>]*>"_s);
    const QString page =
        QString::fromUtf8(readFile(helpFile(u"%1.help/%2/index.html"_s.arg(book, language))));
    QStringList tags;
    for (const QRegularExpressionMatch &match : tag.globalMatch(page))
        tags += match.captured();
    EXPECT_EQ(tags.removeAll(u"<html lang=\"%1\">"_s.arg(language)), 1) << qPrintable(language);
    return tags;
}

TEST(HelpBookPages, SayTheSameInGermanAndFrenchAsInEnglish)
{
    for (const QString &book : {u"VKInkPrintSetting14"_s, u"VKInkColorSetting"_s})
        for (const QString &language : {u"de"_s, u"fr"_s})
            EXPECT_EQ(structureOf(book, language), structureOf(book, u"en"_s))
                << qPrintable(language);
}

TEST(HelpBookNames, AreThoseThatThePanelsAskFor)
{
    const auto name = [](const QString &book) {
        return jsonObject(helpFile(book + u".help/Info.json"_s))
            .value(u"CFBundleHelpBookName"_s)
            .toString();
    };
    EXPECT_EQ(name(u"VKInkPrintSetting14"_s), u"Velkaro Print Settings Help"_s);
    EXPECT_EQ(name(u"VKInkColorSetting"_s), u"Velkaro Color Settings Help"_s);
}

TEST(HelpBookNames, LeadToAPageInTheLanguageFolder)
{
    for (const QString &book : {u"VKInkPrintSetting14"_s, u"VKInkColorSetting"_s})
        EXPECT_EQ(jsonObject(helpFile(book + u".help/Info.json"_s))
                      .value(u"HPDBookAccessPath"_s)
                      .toString(),
                  u"index.html"_s);
}

} // namespace
