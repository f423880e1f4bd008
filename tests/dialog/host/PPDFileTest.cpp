#include "dialog/host/PPDFile.h"
#include "dialog/host/StandardKeywords.h"
#include "platform/ppd/PPDText.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A good PPD up to and with the text.
QByteArray cut(const QByteArray &after)
{
    const QByteArray whole = smallPrinter().text();
    return whole.left(whole.indexOf(after) + after.size());
}

struct BadPPD
{
    const char *name;
    QByteArray text;
    const char *error; // %1: the file's path
};

class PPDThatIsNone : public testing::TestWithParam<BadPPD>
{};

/// Opens the PPD as a user who owns nothing: root may read everything.
Result<OpenedPPD> openAsNobody(const QString &path)
{
    constexpr uid_t nobody = 65534;
    const uid_t user = geteuid();
    const bool changed = user == 0 && seteuid(nobody) == 0;
    auto opened = openPPD(path);
    EXPECT_TRUE(!changed || seteuid(user) == 0);
    return opened;
}

const char *const kNoAsterisk =
    "%1 is not a usable PPD file (line 1: Missing asterisk in column 1).";
const char *const kIncomplete = "The PPD file %1 is incomplete: it ends too early. Get it again.";

} // namespace

TEST_P(PPDThatIsNone, IsRefusedWithASentence)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, GetParam().text);
    const auto opened = openPPD(path);
    EXPECT_EQ(opened.faultKind(), FaultKind::PPD);
    EXPECT_EQ(opened.sentence().toStdString(),
              QString::fromUtf8(GetParam().error).arg(path).toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PPDThatIsNone,
    testing::Values(BadPPD{"Empty", "", "%1 is not a PPD file (Missing PPD-Adobe-4.x header)."},
                    BadPPD{"OtherText", "Hello\n", kNoAsterisk},
                    BadPPD{"Binary",
                           QByteArray("\x7f\x45LF\x02\x01\x01\x00\x00\xff\xfe\n\x80\x81", 14),
                           kNoAsterisk},
                    BadPPD{"CutInTheHeader", cut("*PPD-Ad"),
                           "%1 is not a PPD file (Missing PPD-Adobe-4.x header)."},
                    BadPPD{"CutAfterTheHeader", cut("*PPD-Adobe: \"4.3\"\n"), kIncomplete},
                    BadPPD{"CutInAKeyword", cut("*ShortNick"), kIncomplete},
                    BadPPD{"CutInAValue", cut("*NickName: \"Velkaro"), kIncomplete},
                    BadPPD{"CutInAChoice", cut("*Finish Shiny/Shiny: \""), kIncomplete},
                    BadPPD{"CutBetweenChoices", cut("*Finish Matt/Matt: \"\"\n"), kIncomplete},
                    BadPPD{"TooLarge", QByteArray(50LL * 1024 * 1024, '\n'),
                           "The PPD file %1 is too large: it has more than 4194304 bytes."}),
    [](const auto &testCase) { return std::string(testCase.param.name); });

TEST(PPDFile, AMissingFileIsSaidToBeMissing)
{
    const auto opened = openPPD(u"/nowhere/the.ppd"_s);
    EXPECT_EQ(opened.faultKind(), FaultKind::PPD);
    EXPECT_EQ(opened.sentence(), u"The PPD file /nowhere/the.ppd does not exist."_s);
}

TEST(PPDFile, APathWithPercentSignsIsNamedAsItIs)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"100%2 %3.ppd"_s);
    writeFile(path, "Hello\n");
    EXPECT_EQ(openPPD(path).sentence(),
              path + u" is not a usable PPD file (line 1: Missing asterisk in column 1)."_s);
    writeFile(path, "");
    EXPECT_EQ(openPPD(path).sentence(),
              path + u" is not a PPD file (Missing PPD-Adobe-4.x header)."_s);
}

TEST(PPDFile, AFolderAndAPipeAreNoPPDs)
{
    const QTemporaryDir folder;
    EXPECT_EQ(openPPD(folder.path()).sentence(), folder.path() + u" is not a PPD file."_s);
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(openPPD(pipe).sentence(), pipe + u" is not a PPD file."_s);
    EXPECT_EQ(openPPD(u"/dev/zero"_s).sentence(), u"/dev/zero is not a PPD file."_s);
}

// What libcups does not do today it might do tomorrow: the pipe would hang it.
TEST(PPDFile, NothingThatAPPDNamesIsOpened)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, smallPrinter().text() + "*Include: \"" + QFile::encodeName(pipe) + "\"\n");
    EXPECT_TRUE(openPPD(path));
}

TEST(PPDFile, AFileThatThisUserMayNotReadIsSaidSo)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, smallPrinter().text());
    ASSERT_TRUE(QFile::setPermissions(path, {}));
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0711), 0);
    const auto opened = openAsNobody(path);
    EXPECT_EQ(opened.faultKind(), FaultKind::PPD);
    EXPECT_EQ(opened.sentence(), u"The PPD file %1 cannot be read."_s.arg(path));
}

TEST(PPDFile, AGoodPPDIsOpenedWithItsDefaultsMarked)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, smallPrinter().text());
    const auto opened = openPPD(path);
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    EXPECT_TRUE(opened.sentence().isNull());
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"PageSize"_s), u"A4"_s);
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"Finish"_s), u"Matt"_s);
}

TEST(PPDFile, AnOpenedPPDCanBeOpenedOnceMoreThoughItsFileHasGone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, smallPrinter().text());
    const auto opened = openPPD(path);
    ASSERT_TRUE(opened);
    forceChoice(opened->ppd.get(), u"Finish"_s, u"Shiny"_s);
    ASSERT_TRUE(QFile::remove(path));
    for (int times = 0; times < 2; ++times) {
        const auto again = reopenPPD(opened->text, PPDTexts::AsWritten);
        ASSERT_TRUE(again) << again.sentence().toStdString();
        EXPECT_EQ(marksOf(again->ppd.get()), opened->defaults);
        EXPECT_TRUE(isSameText(*again->text, *opened->text));
    }
}

TEST(PPDFile, TextsAreComparedWhole)
{
    const QTemporaryDir folder;
    const QString one = folder.filePath(u"one.ppd"_s);
    const QString other = folder.filePath(u"other.ppd"_s);
    writeFile(one, smallPrinter().text());
    writeFile(other, smallPrinter().text() + "*% changed\n");
    EXPECT_TRUE(isSameText(*openPPD(one)->text, *openPPD(one)->text));
    EXPECT_FALSE(isSameText(*openPPD(one)->text, *openPPD(other)->text));
}

TEST(PPDFile, ChoicesThatNobodyCanAskForAreNoneOfThem)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, PPDSource().option("Bin", {"One", "/No name", "{x}/In braces", "Two"}).text());
    const auto opened = openPPD(path);
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    const ppd_option_t *bin = findOption(opened->ppd.get(), u"Bin"_s);
    ASSERT_TRUE(bin);
    QStringList names;
    for (int index = 0; index < bin->num_choices; ++index)
        names += ppdName(bin->choices[index].choice);
    EXPECT_EQ(names, QStringList({u"One"_s, u"Two"_s}));
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"Bin"_s), u"One"_s);
}

TEST(PPDFile, AStandardKeywordWithoutWordsIsNamedInTheUsersLanguage)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, PPDSource().option("OutputBin", {"One"}).text());
    const auto shown = openPPD(path, PPDTexts::InUserLanguage);
    const auto asItStands = openPPD(path);
    ASSERT_TRUE(shown && asItStands);
    EXPECT_EQ(ppdText(findOption(shown->ppd.get(), u"OutputBin"_s)->text), u"Output Bin"_s);
    EXPECT_EQ(ppdText(findOption(asItStands->ppd.get(), u"OutputBin"_s)->text), u"OutputBin"_s);
}

struct NamelessCase
{
    const char *behaviour;
    const char *option;
    const char *inNoLanguage; ///< null: the PPD says nothing
    QString text;
};

class OptionWithoutWords : public testing::TestWithParam<NamelessCase>
{};

TEST_P(OptionWithoutWords, IsNamed)
{
    PPDSource source;
    source.option(GetParam().option, {"One", "Two/Number Two"});
    const QByteArray keyword = QByteArray(GetParam().option).split('/').constFirst();
    if (GetParam().inNoLanguage) {
        source.attribute("C.Translation " + keyword + '/' + GetParam().inNoLanguage, "\"\"");
        source.attribute("C." + keyword + " One/The First", "\"\"");
        source.attribute("C." + keyword + " Two/The Second", "\"\"");
    }
    const PPDHandle ppd = source.open();
    nameWhatHasNoWords(*ppd);
    const ppd_option_t *option = findOption(ppd.get(), ppdName(keyword.constData()));
    ASSERT_TRUE(option);
    EXPECT_EQ(ppdText(option->text), GetParam().text);
    EXPECT_EQ(ppdText(option->choices[0].text),
              GetParam().inNoLanguage ? u"The First"_s : u"One"_s);
    EXPECT_EQ(ppdText(option->choices[1].text), u"Number Two"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OptionWithoutWords,
    testing::Values(
        NamelessCase{"ByTheWordForAStandardKeyword", "OutputBin", nullptr, u"Output Bin"_s},
        NamelessCase{"ByThatWordBeforeTheTextInNoLanguage", "cupsPrintQuality", "Quality of It",
                     u"Print Quality"_s},
        NamelessCase{"ByItsTextInNoLanguage", "AcmeGloss", "Gloss", u"Gloss"_s},
        NamelessCase{"ByItsKeywordWhereThereIsNothingElse", "AcmeGloss", nullptr, u"AcmeGloss"_s},
        NamelessCase{"NotWhereItHasWords", "OutputBin/Where To", "Elsewhere", u"Where To"_s}),
    CaseName());

/// An option as a server describes driverless printers, or as a maker does.
struct MadeText
{
    const char *behaviour;
    const char *option;
    const char *choice;
    QString title; ///< with the words of LaterWords
    QString text;  ///< likewise
    QString englishText;
};

/// The words of the dialog in a language that has them all: behind a mark.
class LaterWords : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "StandardKeywords") == 0 ? u"~"_s + QString::fromUtf8(source)
                                                         : QString();
    }
    bool isEmpty() const override { return false; }
};

class StandardOption : public testing::TestWithParam<MadeText>
{};

TEST_P(StandardOption, IsSaidInTheUsersLanguageWhereTheServerWroteIt)
{
    const auto texts = [] {
        const PPDHandle ppd =
            PPDSource().option(GetParam().option, {GetParam().choice, "Other/Else"}).open();
        nameWhatHasNoWords(*ppd);
        const QByteArray keyword = QByteArray(GetParam().option).split('/').constFirst();
        const ppd_option_t *option = findOption(ppd.get(), ppdName(keyword.constData()));
        EXPECT_EQ(ppdText(option->choices[1].text), u"Else"_s);
        return QStringList{ppdText(option->text), ppdText(option->choices[0].text),
                           ppdText(ppd->groups[0].text)};
    };
    EXPECT_EQ(texts()[1], GetParam().englishText);
    LaterWords words;
    QCoreApplication::installTranslator(&words);
    const QStringList told = texts();
    QCoreApplication::removeTranslator(&words);
    EXPECT_EQ(told, (QStringList{GetParam().title, GetParam().text, u"~General"_s}));
}

INSTANTIATE_TEST_SUITE_P(
    Table, StandardOption,
    testing::Values(MadeText{"WithItsText", "InputSlot/Media Source", "Auto/Automatic",
                             u"~Paper Source"_s, u"~Automatic"_s, u"Automatic"_s},
                    MadeText{"WithItsOtherText", "ColorModel/Output Mode", "RGB/Color",
                             u"~Color Mode"_s, u"~Color"_s, u"Color"_s},
                    MadeText{"OfTwoSides", "Duplex/2-Sided Printing", "None/Off (1-Sided)",
                             u"~Two-Sided Printing"_s, u"~Off (1-Sided)"_s, u"Off (1-Sided)"_s},
                    MadeText{"WithoutTexts", "Duplex", "DuplexNoTumble", u"~Two-Sided Printing"_s,
                             u"~Long-Edge (Portrait)"_s, u"Long-Edge (Portrait)"_s},
                    MadeText{"OfAMaker", "Duplex/Beidseitig", "None/Aus", u"Beidseitig"_s, u"Aus"_s,
                             u"Aus"_s},
                    MadeText{"OfNoStandard", "AcmeSlot/Media Source", "Auto/Automatic",
                             u"Media Source"_s, u"Automatic"_s, u"Automatic"_s}),
    CaseName());

TEST(PPDFile, EnglishTextsOfAMakerStayForThoseWhoReadThem)
{
    const PPDHandle ppd = PPDSource().option("InputSlot/Media Source", {"Main/Main Tray"}).open();
    nameWhatHasNoWords(*ppd);
    EXPECT_EQ(ppdText(findOption(ppd.get(), u"InputSlot"_s)->text), u"Media Source"_s);
}

TEST(PPDFile, AMissingLineBreakAtTheEndIsNoCut)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, smallPrinter().text().trimmed());
    EXPECT_TRUE(openPPD(path));
}
