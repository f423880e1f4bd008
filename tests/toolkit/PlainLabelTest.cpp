#include "platform/toolkit/PlainLabel.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct TextCase
{
    const char *behaviour;
    QString text;
};

class PlainTexts : public testing::TestWithParam<TextCase>
{};

const TextCase kTexts[] = {
    {"Words", u"Two-sided"_s},
    {"Picture", u"<img src='file:///tmp/x.png'>"_s},
    {"Document", u"<html><body>x</body></html>"_s},
    {"Link", u"see <a href=\"file:///\">this</a>"_s},
    {"Entity", u"Black &amp; White &lt;b>"_s},
    {"Lines", u"<b>one</b>\ntwo"_s},
};

TEST_P(PlainTexts, StandInANewLabelAsTheyAre)
{
    const std::unique_ptr<QLabel> label(newPlainLabel(GetParam().text));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), GetParam().text);
}

TEST_P(PlainTexts, StandInALabelOfAViewAsTheyAre)
{
    QLabel label;
    label.setTextFormat(Qt::RichText);
    setLabelText(&label, GetParam().text);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.text(), GetParam().text);
}

TEST_P(PlainTexts, StandInAToolTipAsTheyAre)
{
    const QString markup = toolTipMarkup(GetParam().text);
    EXPECT_TRUE(Qt::mightBeRichText(markup)) << "a tool tip takes it for what it is";
    QTextDocument tip;
    tip.setHtml(markup);
    EXPECT_EQ(tip.toPlainText(), GetParam().text);
    QWidget owner;
    showToolTip(QPoint(10, 10), GetParam().text, &owner);
    EXPECT_EQ(QToolTip::text(), markup);
    QToolTip::hideText();
}

INSTANTIATE_TEST_SUITE_P(Cases, PlainTexts, testing::ValuesIn(kTexts), CaseName());

TEST(PlainLabelTest, GivesNoToolTipForNoText)
{
    EXPECT_TRUE(toolTipMarkup(QString()).isNull());
    EXPECT_TRUE(toolTipMarkup(u""_s).isNull());
}

TEST(PlainLabelTest, NamesTheFieldOfItsRow)
{
    QWidget page;
    auto *form = new QFormLayout(&page);
    auto *field = new QLineEdit;
    addLabelledRow(form, u"<b>&Width:"_s, field);
    const auto *label = qobject_cast<QLabel *>(form->labelForField(field));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), u"<b>&Width:"_s);
    EXPECT_EQ(label->buddy(), field);
}

} // namespace
