#include "dialog/host/ChoiceForms.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ChoiceForms formsIn(const char *entry)
{
    return ChoiceForms(QJsonDocument::fromJson(entry).object().toVariantMap());
}

struct Pair
{
    const char *behaviour;
    QString keyword;
    QString one;
    QString other;
    bool areSame = false;
};

class Forms : public testing::TestWithParam<Pair>
{};

TEST_P(Forms, AreSameInBothDirections)
{
    const ChoiceForms forms = formsIn(
        R"({"Medium": [["Plain", "PlainDuplex"], ["Card", "Board", "Thick"]], "Tray": [["A", "B"]]})");
    const auto &[behaviour, keyword, one, other, areSame] = GetParam();
    EXPECT_EQ(forms.areSame(keyword, one, other), areSame);
    EXPECT_EQ(forms.areSame(keyword, other, one), areSame);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Forms,
    testing::Values(Pair{"OfOneGroup", u"Medium"_s, u"Plain"_s, u"PlainDuplex"_s, true},
                    Pair{"OfALongerGroup", u"Medium"_s, u"Board"_s, u"Thick"_s, true},
                    Pair{"AnyChoiceItself", u"Medium"_s, u"Glossy"_s, u"Glossy"_s, true},
                    Pair{"NotOfTwoGroups", u"Medium"_s, u"Plain"_s, u"Card"_s},
                    Pair{"NotOfAnotherKeyword", u"Quality"_s, u"Plain"_s, u"PlainDuplex"_s},
                    Pair{"NotWithAnyOtherChoice", u"Medium"_s, u"Plain"_s, u"Glossy"_s}),
    CaseName());

TEST(FormsOfAChoice, BeginWithTheChoiceItself)
{
    const ChoiceForms forms = formsIn(R"({"Medium": [["Plain", "PlainDuplex"]]})");
    EXPECT_EQ(forms.formsOf(u"Medium"_s, u"PlainDuplex"_s),
              (QStringList{u"PlainDuplex"_s, u"Plain"_s}));
    EXPECT_EQ(forms.formsOf(u"Medium"_s, u"Glossy"_s), QStringList{u"Glossy"_s});
}

TEST(FormsOfABundle, CountForNothingWhereTheyHaveNotTheirForm)
{
    for (const char *entry : {R"({})", R"([])", R"({"Medium": "Plain"})", R"({"Medium": [7, {}]})"})
        EXPECT_FALSE(formsIn(entry).areSame(u"Medium"_s, u"Plain"_s, u"PlainDuplex"_s)) << entry;
}

} // namespace
