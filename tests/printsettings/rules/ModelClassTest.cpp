#include "printsettings/rules/ModelClass.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Model
{
    QString name;
    bool newer;
    int number = 0;
};

class ModelClass : public testing::TestWithParam<Model>
{};

TEST_P(ModelClass, FollowsNumberAndName)
{
    EXPECT_EQ(isNewerModelClass(GetParam().number, GetParam().name), GetParam().newer)
        << qPrintable(GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(ModelNumber, ModelClass,
                         testing::Values(Model{u"Velkaro Nobody"_s, true, 11},
                                         Model{u"Velkaro MX-J110DW"_s, true, 11},
                                         Model{QString(), true, 12},
                                         Model{u"Velkaro Nobody"_s, false, 10},
                                         Model{u"Velkaro MX-J710DW"_s, true, 10},
                                         Model{u"Velkaro MX-J110DW"_s, false, -11}));

INSTANTIATE_TEST_SUITE_P(Hyphens, ModelClass,
                         testing::Values(Model{u"Velkaro J710DW"_s, false},
                                         Model{u"Velkaro MX-J710-DW"_s, false},
                                         Model{u"Velkaro-MX-J710DW"_s, false},
                                         Model{u"-J710DW"_s, true}, Model{u"Velkaro MX-"_s, false},
                                         Model{u""_s, false}, Model{QString(), false}));

INSTANTIATE_TEST_SUITE_P(
    WithJ, ModelClass,
    testing::Values(
        Model{u"MX-J100W"_s, false}, Model{u"MX-J199W"_s, false}, Model{u"MX-J599W"_s, false},
        Model{u"MX-J600W"_s, false}, Model{u"MX-J609W"_s, false}, Model{u"MX-J610W"_s, true},
        Model{u"MX-J699W"_s, true}, Model{u"MX-J700W"_s, true}, Model{u"MX-J899W"_s, true},
        Model{u"MX-J999W"_s, true}, Model{u"MX-J000W"_s, false}, Model{u"MX-J1000DW"_s, true},
        Model{u"MX-J5910DW"_s, true}, Model{u"MX-J0000"_s, true}, Model{u"MX-J710"_s, true},
        Model{u"MX-JX710DW"_s, true},
        // Letters between the digits stay, and count as characters.
        Model{u"MX-J1A23W"_s, true}, Model{u"MX-J1A3W"_s, false},
        // Neither digits nor letters.
        Model{u"MX-J:99"_s, false}, Model{u"MX-J6:0"_s, false}, Model{u"MX-J6/0"_s, false},
        // Too short.
        Model{u"MX-J"_s, false}, Model{u"MX-JDW"_s, false}, Model{u"MX-J6"_s, false},
        Model{u"MX-J61"_s, true}, Model{u"MX-J7"_s, true}));

INSTANTIATE_TEST_SUITE_P(WithoutJ, ModelClass,
                         testing::Values(Model{u"PX-000C"_s, false}, Model{u"PX-299C"_s, false},
                                         Model{u"PX-300C"_s, false}, Model{u"PX-330C"_s, false},
                                         Model{u"PX-379C"_s, false}, Model{u"PX-380C"_s, true},
                                         Model{u"PX-399C"_s, true}, Model{u"PX-400C"_s, true},
                                         Model{u"PX-999CN"_s, true}, Model{u"PX-A00C"_s, false},
                                         Model{u"PX-/00C"_s, false}, Model{u"PX-3:0C"_s, false},
                                         Model{u"PX-100X"_s, true}, Model{u"PX-100c"_s, true},
                                         Model{u"PX-T900"_s, true}, Model{u"PX-j710C"_s, true},
                                         Model{u"PX-j71C"_s, false}, Model{u"PX-1000C"_s, true},
                                         // Too short for a fourth character.
                                         Model{u"PX-380"_s, false}, Model{u"PX-9"_s, false}));

} // namespace
