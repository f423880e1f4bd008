#include "dialog/cups/JobReadBack.h"
#include "dialog/cups/OptionAttribute.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <cups/ipp.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

TEST(ReadBack, NamesWhatTheServerDroppedOrChanged)
{
    const IppHandle kept(ippNew());
    ippAddInteger(kept.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", IPP_JSTATE_PENDING);
    addOptionAttribute(kept.get(), {u"copies"_s, u"1"_s});
    addOptionAttribute(kept.get(), {u"VKMediaType"_s, u"Glossy"_s});
    EXPECT_EQ(
        differences(
            kept.get(), 7,
            {{u"copies"_s, u"2"_s}, {u"VKMediaType"_s, u"Glossy"_s}, {u"com.velkaro.x"_s, u"1"_s}}),
        (QStringList{u"The server changed the setting copies from 2 to 1."_s,
                     u"The server dropped the setting com.velkaro.x=1."_s}));
}

struct Ending
{
    const char *behaviour;
    ipp_jstate_t state;
    const char *reason;
    QStringList notes;
};

void PrintTo(const Ending &row, std::ostream *out)
{
    *out << row.behaviour;
}

class ReadBackOf : public testing::TestWithParam<Ending>
{};

TEST_P(ReadBackOf, AnAcceptedJobSaysHowItStands)
{
    const IppHandle kept(ippNew());
    ippAddInteger(kept.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", GetParam().state);
    ippAddString(kept.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state-reasons", nullptr,
                 GetParam().reason);
    EXPECT_EQ(differences(kept.get(), 7, {}), GetParam().notes);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ReadBackOf,
    testing::Values(Ending{"Pending", IPP_JSTATE_PENDING, "none", {}},
                    Ending{"Printed", IPP_JSTATE_COMPLETED, "job-completed-successfully", {}},
                    Ending{
                        "WithErrors",
                        IPP_JSTATE_COMPLETED,
                        "job-completed-with-errors",
                        {u"The server has ended job 7 with errors (job-completed-with-errors)."_s}},
                    Ending{"Cancelled",
                           IPP_JSTATE_CANCELED,
                           "job-canceled-by-operator",
                           {u"The server has cancelled job 7 (job-canceled-by-operator)."_s}},
                    Ending{"Aborted",
                           IPP_JSTATE_ABORTED,
                           "aborted-by-system",
                           {u"The server has aborted job 7 (aborted-by-system)."_s}},
                    Ending{"Held",
                           IPP_JSTATE_HELD,
                           "job-hold-until-specified",
                           {u"The server holds job 7 (job-hold-until-specified)."_s}}),
    CaseName());

} // namespace
