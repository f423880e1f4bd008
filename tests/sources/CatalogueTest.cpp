#include "tests/sources/Catalogues.h"
#include "tests/sources/ProjectFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The sentences of the product, and the texts of the bundle by their keys.

QString stringTable(const QString &name)
{
    return projectPath(u"resources/strings/"_s + name);
}

// English stands in the sources.
const QString kLanguages[] = {u"de"_s, u"fr"_s, u"ja"_s};

class Catalogue : public testing::TestWithParam<QString>
{};

TEST_P(Catalogue, OfTheDialogHasEverySentenceOfTheSourcesAndNoOther)
{
    QStringList folders;
    for (const QString &folder : kProductFolders)
        folders += projectPath(folder);
    EXPECT_EQ(catalogueFaults(stringTable(u"Dialog_%1.ts"_s.arg(GetParam())), folders),
              QStringList());
}

INSTANTIATE_TEST_SUITE_P(Languages, Catalogue, testing::ValuesIn(kLanguages),
                         [](const auto &language) { return language.param.toStdString(); });

// A colon at the beginning of a line reads like a mistake.
TEST(French, KeepsItsMarksWithTheirWords)
{
    static const QRegularExpression breakable(u" [:;?!»](?=[ <\n]|$)|« "_s,
                                              QRegularExpression::MultilineOption);
    for (const auto *file :
         {"resources/strings/Dialog_fr.ts", "resources/strings/Localizable_fr.ts",
          "dialog/program/HelpTextFrench.cpp"})
        for (const QString &line : contents(QLatin1String(file)).split(u'\n'))
            EXPECT_FALSE(line.contains(breakable)) << file << ": " << line.toStdString();
}

QString panelSources()
{
    QString all;
    for (const auto *folder : {"panel", "printsettings", "colorsettings"})
        for (const QString &file : filesBelow(QLatin1String(folder), {u"*.cpp"_s}))
            all += contents(file);
    return all;
}

/// Whether the dialog looks the key up when somebody asks for a choice that the sample printers
/// have.
bool isOfMissingChoice(const QString &key)
{
    static const QRegularExpression pattern(u"^Why Not ([^=]+)=(.+)$"_s);
    const QRegularExpressionMatch found = pattern.match(key);
    QString printer;
    for (const QString &file : filesBelow(u"resources/ppd"_s, {u"*.drv"_s, u"*.h"_s}))
        printer += contents(file);
    return found.hasMatch() && printer.contains(u'"' + found.captured(1) + u'/') &&
           printer.contains(u'"' + found.captured(2) + u'/');
}

class StringTable : public testing::TestWithParam<QString>
{};

TEST_P(StringTable, HasEveryKeyThatThePanelsLookUpAndNoOther)
{
    const QString sources = panelSources();
    const QStringList keys = translatedKeys(stringTable(GetParam()));
    for (const QString &key : keysLookedUp(sources))
        EXPECT_THAT(keys, testing::Contains(key));
    for (const QString &key : keys)
        EXPECT_TRUE(sources.contains(u'"' + key + u'"') || isOfMissingChoice(key))
            << qPrintable(key) << " is not looked up";
}

INSTANTIATE_TEST_SUITE_P(Languages, StringTable,
                         testing::Values(u"Localizable_de.ts"_s, u"Localizable_en.ts"_s,
                                         u"Localizable_fr.ts"_s, u"Localizable_ja.ts"_s),
                         [](const auto &table) { return table.param.chopped(3).toStdString(); });

TEST(StringTables, HaveTheSameKeysAndPlacesInEveryLanguage)
{
    for (const QString &language : kLanguages)
        EXPECT_EQ(tableFaults(stringTable(u"Localizable_en.ts"_s),
                              stringTable(u"Localizable_%1.ts"_s.arg(language))),
                  QStringList())
            << qPrintable(language);
}

TEST(KeysLookedUp, AreAllLiteralsOfACall)
{
    EXPECT_EQ(keysLookedUp(u"title = localized(\"A\") + localized(\n  tray ? \"B 1\" : \"B 2\");\n"
                           "other(\"C\"); localized(kBest);"_s),
              QStringList({u"A"_s, u"B 1"_s, u"B 2"_s}));
}

// The check itself, held against a source of three texts.

constexpr auto kSource = R"(
#include <QtCore/QCoreApplication>
QString sentence() { return QCoreApplication::translate("Place", "The paper is out."); }
QString other() { return shown(QT_TRANSLATE_NOOP("Place", "Add " "paper.")); }
QString label() { return QCoreApplication::translate("Place", "&Tray %1:"); }
)";

const QString kCatalogue = uR"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context><name>Place</name>%1</context>
</TS>)"_s;

struct Written
{
    const char *behaviour;
    QString messages; ///< of the context "Place"
    QStringList faults;
};

QString message(const QString &source, const QString &translation)
{
    return u"<message><source>%1</source>%2</message>"_s.arg(source, translation);
}

const QString kOut = message(u"The paper is out."_s, u"<translation>紙切れです。</translation>"_s);
const QString kAdd = message(u"Add paper."_s, u"<translation>給紙してください。</translation>"_s);

QString trayMessage(const QString &translation)
{
    return message(u"&amp;Tray %1:"_s, u"<translation>%1</translation>"_s.arg(translation));
}

const QString kTray = trayMessage(u"トレイ%1(&amp;T):"_s);

class WrittenCatalogue : public testing::TestWithParam<Written>
{};

TEST_P(WrittenCatalogue, IsHeldAgainstTheSources)
{
    const QTemporaryDir scratch;
    const QString sources = scratch.filePath(u"sources"_s);
    const QString catalogue = scratch.filePath(u"Test_ja.ts"_s);
    writeFile(sources + u"/Place.cpp"_s, kSource);
    writeFile(catalogue, kCatalogue.arg(GetParam().messages).toUtf8());
    EXPECT_THAT(catalogueFaults(catalogue, {sources}),
                testing::UnorderedElementsAreArray(GetParam().faults));
}

const Written kWritten[] = {
    {"Whole", kOut + kAdd + kTray, {}},
    {"Lacking", kOut + kTray, {u"Place: Add paper.: is not translated"_s}},
    {"Unfinished",
     kOut + kTray +
         message(u"Add paper."_s,
                 u"<translation type=\"unfinished\">給紙してください。</translation>"_s),
     {u"Place: Add paper.: is not translated"_s}},
    {"Empty",
     kOut + kTray + message(u"Add paper."_s, u"<translation></translation>"_s),
     {u"Place: Add paper.: is not translated"_s}},
    {"LeftOver",
     kOut + kAdd + kTray + message(u"Ink is out."_s, u"<translation>インク切れ</translation>"_s),
     {u"Place: Ink is out.: is said nowhere"_s}},
    {"TwoInOneMessage",
     kTray + QString(kOut + kAdd).remove(u"</message><message>"_s),
     {u"Place: The paper is out.: is not translated"_s}},
    {"WithoutThePlace",
     kOut + kAdd + trayMessage(u"トレイ(&amp;T):"_s),
     {u"Place: &Tray %1:: has other places or mnemonics"_s}},
    {"WithoutTheMnemonic",
     kOut + kAdd + trayMessage(u"トレイ%1:"_s),
     {u"Place: &Tray %1:: has other places or mnemonics"_s}},
    {"EndingOtherwise",
     kOut + kAdd + trayMessage(u"トレイ%1(&amp;T)。"_s),
     {u"Place: &Tray %1:: ends otherwise"_s}},
};

INSTANTIATE_TEST_SUITE_P(Table, WrittenCatalogue, testing::ValuesIn(kWritten), CaseName());

} // namespace
