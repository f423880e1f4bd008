// The dialog knows no printer: what is special to one is in its plug-in's bundle.
#include "tests/sources/ProjectFiles.h"
#include "tests/sources/SourceRules.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The PPD keywords and the keys of the ticket that our bundle names.
QStringList wordsOfTheBundle()
{
    const QJsonObject info =
        QJsonDocument::fromJson(contents(projectPath(u"resources/bundle/Info.json"_s)).toUtf8())
            .object();
    QStringList words;
    for (const auto *list : {"PMPPDKeysSupported", "PMPPDKeysSupportedColor", "PMPPDKeysWatched",
                             "PMTicketFoldStateKeys"})
        for (const QJsonValue word : info[QLatin1String(list)].toArray())
            words += word.toString();
    const QJsonObject titles = info["PMTicketKeyKeywords"_L1].toObject();
    for (auto title = titles.begin(); title != titles.end(); ++title)
        words += {title.key(), title.value().toString()};
    return words;
}

QList<SourceRule> vendorRules()
{
    QStringList words;
    for (const QString &word : wordsOfTheBundle())
        words += QRegularExpression::escape(word);
    const QString why = u"the dialog knows no printer's own words"_s;
    const QString instead = u"what the plug-in's bundle says"_s;
    return {
        {"Keyword",
         uR"( \b (?: VK[A-Z]\w* | %1 ) \b )"_s.arg(words.join(u" | "_s)),
         why,
         instead,
         {}},
        {"Action", uR"( "\w+Dialog:" )"_s, why, instead, {}},
        {"Choice", uR"-( "(?:ON|OFF)" )-"_s, why, instead, {}},
    };
}

TEST(VendorWords, AreNotInTheDialog)
{
    ASSERT_GT(wordsOfTheBundle().size(), 20);
    for (const QString &file : sourcesBelow(u"dialog"_s))
        for (const QString &breach : breaches(projectName(file), contents(file), vendorRules()))
            ADD_FAILURE() << breach.toStdString();
}

struct Line
{
    const char *behaviour;
    const char *text;
    bool isGood = false;
};

class VendorLine : public testing::TestWithParam<Line>
{};

TEST_P(VendorLine, IsNamedWhenItIsAPrintersOwn)
{
    const QString line = QString::fromLatin1(GetParam().text);
    EXPECT_EQ(breaches(u"dialog/window/A.cpp"_s, line, vendorRules()).isEmpty(), GetParam().isGood);
}

INSTANTIATE_TEST_SUITE_P(
    Table, VendorLine,
    testing::Values(Line{"Keyword", "mark(u\"VKMediaType\"_s, choice);"},
                    Line{"KeywordOfThePrefixAlone", "infoValue(u\"VKAnything\"_s)"},
                    Line{"KeywordWithoutThePrefix", "find(ppd, u\"MirrorPrint\"_s);"},
                    Line{"KeyOfTheTicket",
                         "value(\"com.velkaro.print.PrintSettings.advancedItem\"_L1)"},
                    Line{"ClassOfThePlugIn", "VKInkQuality14PDEPlugIn *plugIn;"},
                    Line{"Action", "if (action == \"revertEffectDialog:\"_L1)"},
                    Line{"Choice", "return choice == \"ON\"_L1;"},
                    Line{"StandardKeyword", "mark(u\"PageSize\"_s, choice);", true},
                    Line{"Comment", "    // \"VKMediaType\" is one.", true},
                    Line{"OtherWord", "bundle.infoValue(u\"PMPPDKeysWatched\"_s)", true}),
    CaseName());

} // namespace
