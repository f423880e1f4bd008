#include "dialog/job/Conflicts.h"
#include "dialog/host/PPDFile.h"
#include "dialog/host/PPDMarks.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/ClashingPPD.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Conflicts : public testing::Test
{
protected:
    Conflicts() : m_opened(*openPPD(m_file.path())) {}

    ClashingPPD m_file;
    OpenedPPD m_opened;
};

TEST_F(Conflicts, AreNamedByTheTextsOfBothSettings)
{
    ppd_file_t *ppd = m_opened.ppd.get();
    ASSERT_TRUE(ppd);
    ASSERT_TRUE(forceChoice(ppd, u"VKMediaType"_s, u"Transparencies"_s));
    EXPECT_EQ(clashesWith(ppd, u"Duplex"_s, u"DuplexTumble"_s),
              QStringList{u"Media Type: Transparencies"_s});
    EXPECT_EQ(refusalSentence(ppd, u"Duplex"_s, u"DuplexTumble"_s),
              u"\"Two-Sided Printing: Short-Edge Binding\" cannot be chosen: the printer does not "
              "allow it together with \"Media Type: Transparencies\"."_s);
}

TEST_F(Conflicts, AreNoneWhereThePPDForbidsNothing)
{
    ppd_file_t *ppd = m_opened.ppd.get();
    ASSERT_TRUE(ppd);
    EXPECT_TRUE(refusalSentence(ppd, u"Duplex"_s, u"DuplexTumble"_s).isNull());
    EXPECT_TRUE(refusalSentence(nullptr, u"Duplex"_s, u"DuplexTumble"_s).isNull());
    EXPECT_EQ(ppdConflicts(ppd), 0); // looking marks nothing
}

} // namespace
