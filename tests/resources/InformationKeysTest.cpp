#include "printsettings/rules/DuplexPapers.h"
#include "tests/resources/Places.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QJsonObject information()
{
    return jsonObject(bundleFile(u"Info.json"_s));
}

QStringList list(const QString &key)
{
    QStringList result;
    const QJsonArray array = information().value(key).toArray();
    for (const auto &value : array)
        result << value.toString();
    return result;
}

TEST(InformationKeys, NameTheBundleItsClassAndItsHelp)
{
    const QJsonObject info = information();
    EXPECT_EQ(info[u"CFBundleIdentifier"_s].toString(), u"com.velkaro.print.pde"_s);
    EXPECT_EQ(info[u"CFBundleName"_s].toString(), u"VKInkPrintSetting14"_s);
    EXPECT_EQ(info[u"CFBundleShortVersionString"_s].toString(), u"1.0.0"_s);
    EXPECT_EQ(info[u"CFBundleExecutable"_s].toString(), u"libVKInkQuality14PDEPlugIn.so"_s);
    EXPECT_EQ(info[u"NSPrincipalClass"_s].toString(), u"VKInkQuality14PDEPlugIn"_s);
    EXPECT_EQ(info[u"CFBundleHelpBookName"_s].toString(), u"Velkaro Print Settings Help"_s);
}

TEST(InformationKeys, ListThePrintSettingsKeywordsWithTheMediumBeforeTheQuality)
{
    EXPECT_EQ(
        list(u"PMPPDKeysSupported"_s),
        (QStringList{u"VKMediaType"_s, u"VKResolution"_s, u"VKMonoColor"_s, u"VKColorPaperThick"_s,
                     u"VKInputSlot"_s, u"VKMirror"_s, u"MirrorPrint"_s, u"VKReverse"_s, u"VKJpeg"_s,
                     u"VKDuplexMode"_s, u"VKBiDir"_s, u"VKSlowDrying"_s,
                     u"VKVertLineAlignA3B4Ledger"_s, u"VKVertLineAlignA4Letter"_s,
                     u"VKVertLineAlignOther"_s, u"VKVertLineAlignDedicated"_s}));
}

TEST(InformationKeys, ListTheColorSettingsKeywordsWithoutTheEnhancementValues)
{
    EXPECT_EQ(list(u"PMPPDKeysSupportedColor"_s),
              (QStringList{u"VKColorMatching"_s, u"VKHalfTonePattern"_s, u"VKColorEnhancement"_s}));
}

TEST(InformationKeys, ListThePapersThatTheRulesTakeForBothSides)
{
    const QStringList listed = list(u"PDETwoSidedPapers"_s);
    EXPECT_EQ(listed.size(), 19);
    for (const QString &paper : listed)
        EXPECT_TRUE(isDuplexPaper(paper)) << paper.toStdString();
}

TEST(InformationKeys, ListEveryView)
{
    QStringList views;
    for (const QString &file : QDir(bundleFile(u"Resources"_s)).entryList({u"*.ui"_s}))
        views << QFileInfo(file).baseName();
    QStringList listed = list(u"PDEViews"_s);
    listed.sort();
    EXPECT_EQ(listed, views);
    EXPECT_FALSE(views.isEmpty());
}

TEST(InformationKeys, NameThePrintersByTheirMakerAndByEveryKeywordOfThePanels)
{
    const QJsonArray printers = information().value(u"PDEPrinters"_s).toArray();
    EXPECT_TRUE(printers.contains(QJsonObject{{u"Manufacturer"_s, u"Velkaro"_s}}));
    QStringList patterns;
    for (const auto &printer : printers)
        patterns << printer.toObject().value(u"Keyword"_s).toString();
    const QStringList keywords = list(u"PMPPDKeysSupported"_s) +
                                 list(u"PMPPDKeysSupportedColor"_s) + list(u"PMPPDKeysWatched"_s);
    for (const QString &keyword : keywords)
        EXPECT_TRUE(patterns.contains(keyword) ||
                    (keyword.startsWith(u"VK"_s) && patterns.contains(u"VK*"_s)))
            << keyword.toStdString();
}

TEST(InformationKeys, NameTheKeysOfTheTicket)
{
    const QString prefix = u"com.velkaro.print.PrintSettings."_s;
    EXPECT_EQ(information().value(u"PMTicketKeyKeywords"_s).toObject(),
              (QJsonObject{{prefix + u"T2T_Brightness"_s, u"VKBrightness"_s},
                           {prefix + u"T2T_Contrast"_s, u"VKContrast"_s},
                           {prefix + u"T2T_Red"_s, u"VKRed"_s},
                           {prefix + u"T2T_Green"_s, u"VKGreen"_s},
                           {prefix + u"T2T_Blue"_s, u"VKBlue"_s}}));
    EXPECT_EQ(list(u"PMTicketFoldStateKeys"_s),
              (QStringList{prefix + u"advancedItem"_s, prefix + u"advancedcolorItem"_s}));
}

TEST(InformationKeys, WatchTheFaxOutput)
{
    EXPECT_EQ(list(u"PMPPDKeysWatched"_s), QStringList{u"VKOutput"_s});
}

} // namespace
