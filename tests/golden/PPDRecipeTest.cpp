#include "tests/golden/PPDRecipe.h"
#include "tests/support/CaseName.h"

#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

constexpr auto kBase = R"(*PPD-Adobe: "4.3"
*ModelName: "Old"
*NickName: "Old, 1.0"
*OpenUI *PageSize/Size: PickOne
*PageSize A4/A4: "a"
*CloseUI: *PageSize
*CustomPageSize True: "pop"
*OpenUI *Tray/Source: PickOne
*OrderDependency: 20 AnySetup *Tray
*DefaultTray: One
*Tray One/Tray 1: "1"
*Tray Two/Tray 2: "2"
*CloseUI: *Tray
*OpenUI *Tray2/Other: PickOne
*Tray2 One/One: "1"
*CloseUI: *Tray2)";

struct RecipeCase
{
    const char *behaviour;
    const char *edit;
    const char *before; ///< a part of the base, and what stands there instead
    const char *after;
};

void PrintTo(const RecipeCase &row, std::ostream *out)
{
    *out << row.behaviour;
}

class PPDRecipe : public testing::TestWithParam<RecipeCase>
{};

} // namespace

TEST_P(PPDRecipe, ChangesItsPlaceAndNoOther)
{
    const RecipeCase &row = GetParam();
    const QByteArray recipe = QByteArray(R"({"edits":[)") + row.edit + "]}";
    QByteArray expected = QByteArray(kBase) + '\n';
    ASSERT_EQ(expected.count(row.before), 1);
    expected.replace(row.before, row.after);
    EXPECT_EQ(preparedPPD(QJsonDocument::fromJson(recipe).object(), kBase).toStdString(),
              expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Table, PPDRecipe,
    testing::Values(
        RecipeCase{"Drop", R"({"edit":"drop","keyword":"Tray2"})",
                   "*OpenUI *Tray2/Other: PickOne\n*Tray2 One/One: \"1\"\n*CloseUI: *Tray2\n", ""},
        RecipeCase{"DropOfWhatIsNotThere", R"({"edit":"drop","keyword":"Tra"})", "Old, 1.0",
                   "Old, 1.0"},
        RecipeCase{"DropChoice", R"({"edit":"dropChoice","keyword":"Tray","choice":"One"})",
                   "*Tray One/Tray 1: \"1\"\n", ""},
        RecipeCase{"Only", R"({"edit":"only","keyword":"Tray","choice":"Two"})",
                   "*OrderDependency: 20 AnySetup *Tray\n*DefaultTray: One\n*Tray One/Tray 1: "
                   "\"1\"\n*Tray Two",
                   "*DefaultTray: Two\n*OrderDependency: 20 AnySetup *Tray\n*Tray Two"},
        RecipeCase{"Default", R"({"edit":"default","keyword":"Tray","choice":"Nowhere"})",
                   "*OrderDependency: 20 AnySetup *Tray\n*DefaultTray: One\n",
                   "*DefaultTray: Nowhere\n*OrderDependency: 20 AnySetup *Tray\n"},
        RecipeCase{"NoDefault", R"({"edit":"noDefault","keyword":"Tray"})", "*DefaultTray: One\n",
                   ""},
        RecipeCase{"Rename", R"({"edit":"rename","keyword":"Tray","to":"tray"})",
                   "*OpenUI *Tray/Source: PickOne\n*OrderDependency: 20 AnySetup *Tray\n"
                   "*DefaultTray: One\n*Tray One/Tray 1: \"1\"\n*Tray Two/Tray 2: \"2\"\n"
                   "*CloseUI: *Tray\n",
                   "*OpenUI *tray/Source: PickOne\n*OrderDependency: 20 AnySetup *tray\n"
                   "*Defaulttray: One\n*tray One/Tray 1: \"1\"\n*tray Two/Tray 2: \"2\"\n"
                   "*CloseUI: *tray\n"},
        RecipeCase{"RenameChoice",
                   R"({"edit":"renameChoice","keyword":"Tray","choice":"One","to":"ONE"})",
                   "*DefaultTray: One\n*Tray One/", "*DefaultTray: ONE\n*Tray ONE/"},
        RecipeCase{"Title", R"({"edit":"title","keyword":"Tray","choice":"Two","to":"<b>"})",
                   "*Tray Two/Tray 2:", "*Tray Two/<b>:"},
        RecipeCase{"Type", R"({"edit":"type","keyword":"Tray","to":"PickMany"})",
                   "*Tray/Source: PickOne", "*Tray/Source: PickMany"},
        RecipeCase{"Twice", R"({"edit":"twice","keyword":"Tray2"})",
                   "*OpenUI *Tray2/Other: PickOne\n*Tray2 One/One: \"1\"\n*CloseUI: *Tray2\n",
                   "*OpenUI *Tray2/Other: PickOne\n*Tray2 One/One: \"1\"\n*CloseUI: *Tray2\n"
                   "*OpenGroup: Again/Again\n"
                   "*OpenUI *Tray2/Other: PickOne\n*Tray2 One/One: \"1\"\n*CloseUI: *Tray2\n"
                   "*CloseGroup: Again\n"},
        RecipeCase{"AddChoice", R"({"edit":"addChoice","keyword":"Tray","choice":"Three"})",
                   "*OpenUI *Tray/Source: PickOne\n",
                   "*OpenUI *Tray/Source: PickOne\n*Tray Three: \"\"\n"},
        RecipeCase{"Model", R"({"edit":"model","to":"New"})",
                   "*ModelName: \"Old\"\n*NickName: \"Old, 1.0\"",
                   "*ModelName: \"New\"\n*NickName: \"New\""},
        RecipeCase{"Attribute", R"({"edit":"attribute","keyword":"cupsModelNumber","to":"7"})",
                   "*OpenUI *PageSize", "*cupsModelNumber: \"7\"\n*OpenUI *PageSize"},
        RecipeCase{"NoAttribute", R"({"edit":"attribute","keyword":"ModelName","to":null})",
                   "*ModelName: \"Old\"\n", ""},
        RecipeCase{"Constraint", R"({"edit":"constraint","one":"*Tray Two","other":"*Tray2 One"})",
                   "*CloseUI: *Tray2\n",
                   "*CloseUI: *Tray2\n*UIConstraints: *Tray Two *Tray2 One\n"
                   "*UIConstraints: *Tray2 One *Tray Two\n"},
        RecipeCase{"NoCustom", R"({"edit":"noCustom"})", "*CustomPageSize True: \"pop\"\n", ""}),
    CaseName());

TEST(PPDRecipes, MakeTheirEditsInOrder)
{
    const QByteArray recipe = R"({"base":"a.ppd","edits":[{"edit":"model","to":"New"},
        {"edit":"rename","keyword":"ModelName","to":"Other"}]})";
    const QJsonObject read = QJsonDocument::fromJson(recipe).object();
    EXPECT_EQ(preparedPPD(read, "*ModelName: \"Old\"\n"), "*Other: \"New\"\n");
    EXPECT_EQ(baseOfRecipe(read), QStringLiteral("a.ppd"));
}
