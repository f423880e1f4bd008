#include "tests/golden/JsonDelta.h"
#include "tests/support/CaseName.h"

#include <QtCore/QJsonObject>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

struct DeltaCase
{
    const char *behaviour;
    const char *before;
    const char *after;
    std::string changes; ///< a path, a space and a value a line
};

void PrintTo(const DeltaCase &row, std::ostream *out)
{
    *out << row.behaviour;
}

class JsonDelta : public testing::TestWithParam<DeltaCase>
{
protected:
    QJsonValue m_before = valueOfText(GetParam().before);
    QJsonValue m_after = valueOfText(GetParam().after);
};

std::string textOf(const QList<JsonChange> &changes)
{
    std::string text;
    for (const JsonChange &change : changes)
        text += change.path.toStdString() + ' ' + compactText(change.value).toStdString() + '\n';
    return text;
}

} // namespace

TEST_P(JsonDelta, TellsEachPlaceThatDiffers)
{
    EXPECT_EQ(textOf(changesBetween(m_before, m_after)), GetParam().changes);
}

TEST_P(JsonDelta, MakesTheOneOfTheOther)
{
    EXPECT_EQ(compactText(withChanges(m_before, changesBetween(m_before, m_after))),
              compactText(m_after));
}

INSTANTIATE_TEST_SUITE_P(
    Table, JsonDelta,
    testing::Values(DeltaCase{"Nothing", R"({"a":[1,{"b":null}]})", R"({"a":[1,{"b":null}]})", ""},
                    DeltaCase{"AMemberOfAMember", R"({"a":{"b":1,"c":2}})",
                              R"({"a":{"b":1,"c":3}})", "/a/c 3\n"},
                    DeltaCase{"ANewMember", R"({})", R"({"a":{"b":1}})", "/a {\"b\":1}\n"},
                    DeltaCase{"AMemberThatIsGone", R"({"a":1,"b":2})", R"({"b":2})",
                              "/a nothing\n"},
                    DeltaCase{"NullIsNotGone", R"({"a":1})", R"({"a":null})", "/a null\n"},
                    DeltaCase{"AnItem", R"({"a":[{"b":1},{"b":2}]})", R"({"a":[{"b":1},{"b":3}]})",
                              "/a/1/b 3\n"},
                    DeltaCase{"AListThatGrows", R"({"a":[1]})", R"({"a":[1,2]})", "/a [1,2]\n"},
                    DeltaCase{"AnotherKind", R"({"a":"1"})", R"({"a":1})", "/a 1\n"},
                    DeltaCase{"OddNames", R"({"a b":1,"c/d":1,"e%":1,"":1,"ü":1})",
                              R"({"a b":2,"c/d":2,"e%":2,"":2,"ü":2})",
                              "/ 2\n/a%20b 2\n/c%2fd 2\n/e%25 2\n/ü 2\n"},
                    DeltaCase{"TheWholeValue", "1", "[]", " []\n"}),
    CaseName());
