#include "panel/KeywordControls.h"

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ViewLoader.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/ViewText.h"

#include <gtest/gtest.h>

#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr KeywordControl kTable[] = {
    {"Medium"_L1, "mediumPopup"_L1, "mediumLabel"_L1}, {"Mirror"_L1, "mirrorButton"_L1, {}},
    {"OldMirror"_L1, "mirrorButton"_L1, {}},           {"Brightness"_L1, {}, "brightnessLabel"_L1},
    {"Lost"_L1, "lostPopup"_L1, "lostLabel"_L1},
};

const QByteArray kView =
    viewWidget("PopUpButton", "mediumPopup") + viewWidget("QLabel", "mediumLabel") +
    viewWidget("QCheckBox", "mirrorButton") + viewWidget("QLabel", "brightnessLabel");

class KeywordTable : public testing::Test
{
protected:
    void load()
    {
        ViewConnections connections;
        controls.connect(connections);
        connections.outlet(u"mediumPopup"_s, popup);
        loaded = loadView(view.path(), connections);
        ASSERT_TRUE(loaded);
    }

    QWidget *named(const QString &name) const { return loaded->outlets().value(name); }

    const ViewText view{kView};
    KeywordControls controls{kTable};
    std::unique_ptr<LoadedView> loaded;
    PopUpButton *popup = nullptr; ///< an outlet of the owner's own, of the same name as the table's
};

TEST_F(KeywordTable, LeadsToControlsAndLabelsAndBack)
{
    load();
    ASSERT_TRUE(named(u"mediumPopup"_s) && named(u"mediumLabel"_s) && named(u"brightnessLabel"_s));
    EXPECT_EQ(controls.control(u"Medium"_s), named(u"mediumPopup"_s));
    EXPECT_EQ(controls.label(u"Medium"_s), named(u"mediumLabel"_s));
    EXPECT_EQ(controls.keyword(named(u"mediumPopup"_s)), u"Medium"_s);
    EXPECT_EQ(controls.label(u"Brightness"_s), named(u"brightnessLabel"_s));
    EXPECT_EQ(popup, named(u"mediumPopup"_s)) << "the owner's outlet of the name is connected too";
}

TEST_F(KeywordTable, LeadsFromTheControlOfTwoKeywordsToTheFirst)
{
    load();
    ASSERT_TRUE(named(u"mirrorButton"_s));
    EXPECT_EQ(controls.control(u"Mirror"_s), named(u"mirrorButton"_s));
    EXPECT_EQ(controls.control(u"OldMirror"_s), named(u"mirrorButton"_s));
    EXPECT_EQ(controls.keyword(named(u"mirrorButton"_s)), u"Mirror"_s);
}

TEST_F(KeywordTable, HasNothingForWhatItOrTheViewLacks)
{
    load();
    for (const QString &keyword : {u"Brightness"_s, u"Lost"_s, u"medium"_s, u""_s, QString()})
        EXPECT_EQ(controls.control(keyword), nullptr) << qPrintable(keyword);
    for (const QString &keyword : {u"Mirror"_s, u"Lost"_s, u"Else"_s, u""_s, QString()})
        EXPECT_EQ(controls.label(keyword), nullptr) << qPrintable(keyword);
    EXPECT_TRUE(controls.keyword(named(u"mediumLabel"_s)).isNull());
    EXPECT_TRUE(controls.keyword(nullptr).isNull()) << "a lost control is null as well";
}

TEST_F(KeywordTable, IsEmptyBeforeTheViewIsLoaded)
{
    EXPECT_EQ(controls.control(u"Medium"_s), nullptr);
    EXPECT_EQ(controls.label(u"Medium"_s), nullptr);
    EXPECT_TRUE(controls.keyword(nullptr).isNull());
}

} // namespace
