#include "dialog/window/CustomSizeFields.h"
#include "dialog/job/PaperSizes.h"
#include "tests/endtoend/JobPrinting.h"

#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CustomSize : public testing::Test
{
protected:
    CustomSize()
    {
        m_fields.setLimits({182, 936, 298, 1369}); // 64.2 × 105.1 mm to 330.2 × 483 mm
        m_fields.setSize(595, 842);
        QObject::connect(&m_fields, &CustomSizeFields::edited, &m_fields, [this] { ++m_edits; });
        m_fields.show();
    }

    QString word(const char *name)
    {
        return m_fields.findChild<QLabel *>(QLatin1String(name))->text();
    }

    void type(const char *name, const char *text)
    {
        auto *field = m_fields.findChild<QDoubleSpinBox *>(QLatin1String(name));
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
    }

    void chooseUnit(int index)
    {
        auto *unit = m_fields.findChild<QComboBox *>(u"customUnit"_s);
        unit->setCurrentIndex(index);
        Q_EMIT unit->activated(index);
    }

    CustomSizeFields m_fields;
    int m_edits = 0;
};

TEST_F(CustomSize, SaysBesideTheFieldWhatIsWrongWithALength)
{
    chooseUnit(0);
    type("customWidth", "50");
    EXPECT_EQ(word("customWidthValidation"), u"Too small: at least 64.3 mm."_s);
    EXPECT_EQ(word("customHeightValidation"), u""_s);
    EXPECT_FALSE(m_fields.isAcceptable());
    type("customHeight", "500");
    EXPECT_EQ(word("customHeightValidation"), u"Too large: at most 482.9 mm."_s);
    type("customWidth", "64.3"); // the limits, as the words have them
    type("customHeight", "482.9");
    EXPECT_EQ(word("customWidthValidation"), u""_s);
    EXPECT_EQ(word("customHeightValidation"), u""_s);
    EXPECT_TRUE(m_fields.isAcceptable());
    EXPECT_GT(m_edits, 0);
}

TEST_F(CustomSize, KeepsTheSizeWhenTheUnitChanges)
{
    chooseUnit(1);
    EXPECT_EQ(m_fields.paperWidth(), 595);
    EXPECT_EQ(m_fields.paperHeight(), 842);
    EXPECT_EQ(m_edits, 0);
    type("customWidth", "8.5");
    EXPECT_DOUBLE_EQ(m_fields.paperWidth(), 612);
    type("customWidth", "1");
    EXPECT_EQ(word("customWidthValidation"), u"Too small: at least 2.53 inches."_s);
    chooseUnit(0);
    EXPECT_EQ(word("customWidthValidation"), u"Too small: at least 64.3 mm."_s);
}

/// What stands in the fields for a size, in both units.
struct ShownSize
{
    const char *paper;
    QSizeF points;
    const char *millimetres;
    const char *inches;
};

TEST_F(CustomSize, ShowsStandardSizesAsPeopleKnowThem)
{
    const auto shown = [this](int unit) {
        chooseUnit(unit);
        const auto text = [this](const char *name) {
            return m_fields.findChild<QDoubleSpinBox *>(QLatin1String(name))->cleanText();
        };
        return (text("customWidth") + u" x "_s + text("customHeight")).toStdString();
    };
    for (const ShownSize &row : {ShownSize{"A4", {595, 842}, "210.0 x 297.0", "8.27 x 11.69"},
                                 ShownSize{"A5", {420, 595}, "148.0 x 210.0", "5.83 x 8.27"},
                                 ShownSize{"B5", {516, 729}, "182.0 x 257.0", "7.17 x 10.12"},
                                 ShownSize{"Letter", {612, 792}, "215.9 x 279.4", "8.50 x 11.00"},
                                 ShownSize{"4x6", {288, 432}, "101.6 x 152.4", "4.00 x 6.00"}}) {
        const QSizeF meant = meantSize(row.points);
        m_fields.setSize(meant.width(), meant.height());
        for (int round = 0; round < 2; ++round) { // there and back again
            EXPECT_EQ(shown(0), row.millimetres) << row.paper;
            EXPECT_EQ(shown(1), row.inches) << row.paper;
        }
        EXPECT_EQ(m_fields.paperWidth(), meant.width()) << row.paper;
    }
}

} // namespace
