#include "tests/resources/Places.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Every key that the panels look up.
const QStringList KEYS{
    u"Print Setting"_s,
    u"Color Setting"_s,
    u"OK"_s,
    u"Cancel"_s,
    u"ON"_s,
    u"OFF"_s,
    u"Suppression"_s,
    u"Model"_s,
    u"advancedItem"_s,
    u"advancedcolorItem"_s,
    u"Section"_s,
    u"Layout"_s,
    u"OtherOption"_s,
    u"A4"_s,
    u"Why Not VKBiDir=ON"_s,
    u"Unsupported Paper Title"_s,
    u"Unsupported Paper MSG1"_s,
    u"Unsupported Paper MSG2"_s,
    u"Unsupported Paper MSG3"_s,
    u"Unsupported Paper MSG4"_s,
    u"Best Alert"_s,
    u"Highest Alert2"_s,
    u"Borderless Alert"_s,
    u"Borderless Alert2"_s,
    u"DiscPrint Alert"_s,
    u"DiscPrint Alert2"_s,
    u"Envelope Alert Title"_s,
    u"Envelope Alert1"_s,
    u"Envelope Alert2 Lark22"_s,
    u"Envelope Alert2 Lark22 MP"_s,
    u"Envelope Caution"_s,
    u"Duplex Alert"_s,
    u"Duplex Alert2"_s,
    u"Paper Orientation Title"_s,
    u"PPD Choice Unknown"_s,
    u"PPD Choice Missing"_s,
    u"PPD Letters"_s,
    u"PPD Default"_s,
    u"PPD Partner Missing"_s,
    u"PPD Picture"_s,
};

class StringTables : public testing::TestWithParam<QString>
{
protected:
    QString text(const char *language)
    {
        QTranslator table;
        const QString name = u"Localizable_%1.qm"_s.arg(QLatin1String(language));
        EXPECT_TRUE(table.load(bundleResource(name))) << qPrintable(name);
        return table.translate("Localizable", GetParam().toUtf8().constData());
    }
};

TEST_P(StringTables, HaveATextInEveryLanguage)
{
    for (const char *language : {"de", "en", "fr", "ja"})
        EXPECT_FALSE(text(language).trimmed().isEmpty()) << language;
}

TEST_P(StringTables, HaveAJapaneseTextInJapanese)
{
    const QString japanese = text("ja");
    if (GetParam() == u"OK"_s || GetParam() == u"A4"_s)
        return; // the same in both languages
    EXPECT_TRUE(japanese.contains(QRegularExpression(u"[\\p{Hiragana}\\p{Katakana}\\p{Han}]"_s)))
        << qPrintable(japanese);
}

std::string nameOfKey(const testing::TestParamInfo<QString> &info)
{
    return QString(info.param).remove(QRegularExpression(u"[ =]"_s)).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Keys, StringTables, testing::ValuesIn(KEYS), nameOfKey);

TEST(StringTablesWords, NameThePanelsAndThePaperAsThePageSetupDoes)
{
    QTranslator english;
    QTranslator japanese;
    ASSERT_TRUE(english.load(bundleResource(u"Localizable_en.qm"_s)));
    ASSERT_TRUE(japanese.load(bundleResource(u"Localizable_ja.qm"_s)));
    EXPECT_EQ(english.translate("Localizable", "Print Setting"), u"Print Settings"_s);
    EXPECT_EQ(english.translate("Localizable", "Color Setting"), u"Color Settings"_s);
    EXPECT_EQ(japanese.translate("Localizable", "Print Setting"), u"印刷設定"_s);
    EXPECT_EQ(japanese.translate("Localizable", "Color Setting"), u"カラー設定"_s);
    EXPECT_EQ(english.translate("Localizable", "A4"), u"A4"_s);
    EXPECT_EQ(japanese.translate("Localizable", "A4"), u"A4"_s);
}

} // namespace
