#include "dialog/window/SummaryPane.h"
#include "tests/endtoend/JobPrinting.h"

#include <QtWidgets/QLabel>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(SummarySection, HasItsLinesInTheOrderOfThePanel)
{
    const SummarySection section = sectionOf(
        u"Panel"_s, {{u"B"_s, u"2"_s},
                     {u"A"_s, u"1"_s},
                     {u"Unlisted"_s, u"3"_s},
                     {u"Summary Display Order"_s, QStringList{u"B"_s, u"Gone"_s, u"A"_s}}});
    EXPECT_EQ(section.heading, u"Panel"_s);
    ASSERT_EQ(section.lines.size(), 2);
    EXPECT_EQ(section.lines[0].title, u"B"_s);
    EXPECT_EQ(section.lines[0].value, u"2"_s);
    EXPECT_EQ(section.lines[1].title, u"A"_s);
    EXPECT_TRUE(sectionOf(u"Panel"_s, {}).lines.isEmpty());
}

TEST(SummaryPane, ShowsForeignTextsAsTheyStand)
{
    SummaryPane pane;
    pane.setSections(
        {{u"<b>Head</b>"_s, {{u"A & B"_s, u"<img src='file:///x'>\n&amp;"_s}}}, {u"Empty"_s, {}}});
    QStringList texts;
    for (const QLabel *label : pane.findChildren<QLabel *>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        texts += label->text();
    }
    EXPECT_EQ(texts, (QStringList{u"<b>Head</b>"_s, u"A & B"_s, u"<img src='file:///x'> &amp;"_s}));
}

} // namespace
