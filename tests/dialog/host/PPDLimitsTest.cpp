#include "dialog/host/PPDLimits.h"

#include "dialog/host/PPDFile.h"
#include "tests/ppdlimits/PPDAtLimit.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <ostream>

using namespace Qt::StringLiterals;

namespace {

/// A limit, and what is told of a PPD that is above it.
struct Row
{
    const char *name;
    qsizetype most;
    const char *error; // %1: the file's path
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

const Row kRows[] = {
    {"bytes", 4'194'304, "The PPD file %1 is too large: it has more than 4194304 bytes."},
    {"lines", 60'000, "The PPD file %1 cannot be used: it has more than 60000 lines."},
    {"groups", 200, "The PPD file %1 cannot be used: it has more than 200 groups of options."},
    {"options", 1'000, "The PPD file %1 cannot be used: it has more than 1000 options."},
    {"choices", 2'500, "The PPD file %1 cannot be used: an option has more than 2500 choices."},
    {"papers", 1'000, "The PPD file %1 cannot be used: it has more than 1000 papers."},
    {"parameters", 1'000,
     "The PPD file %1 cannot be used: it has more than 1000 custom parameters."},
    {"UIConstraints", 36'000,
     "The PPD file %1 cannot be used: it has more than 36000 UIConstraints."},
    {"cupsUIConstraints", 4'000,
     "The PPD file %1 cannot be used: it has more than 4000 cupsUIConstraints."},
    {"cupsUIConstraints' options", 20'000,
     "The PPD file %1 cannot be used: its cupsUIConstraints name more than 20000 options."},
    {"attributes", 16'000, "The PPD file %1 cannot be used: it has more than 16000 attributes."},
};

class PPDLimits : public testing::TestWithParam<Row>
{
protected:
    const PPDLimit &limit()
    {
        const auto found = std::ranges::find_if(ppdLimits(), [](const PPDLimit &each) {
            return qstrcmp(each.name, GetParam().name) == 0;
        });
        EXPECT_NE(found, ppdLimits().end());
        return *found;
    }

    QString write(qsizetype count)
    {
        const QByteArray text = ppdWith(limit(), count);
        EXPECT_EQ(censusOf(text).*limit().count, count);
        const QString path = m_folder.filePath(u"the.ppd"_s);
        writeFile(path, text);
        return path;
    }

private:
    QTemporaryDir m_folder;
};

TEST_P(PPDLimits, ArePassedByWhatStandsAtThem)
{
    const auto opened = openPPD(write(GetParam().most));
    EXPECT_TRUE(opened) << opened.sentence().toStdString();
}

TEST_P(PPDLimits, RefuseWhatIsOneAboveThem)
{
    const QString path = write(GetParam().most + 1);
    const auto opened = openPPD(path);
    EXPECT_FALSE(opened);
    EXPECT_EQ(opened.sentence(), QString::fromLatin1(GetParam().error).arg(path));
}

INSTANTIATE_TEST_SUITE_P(Table, PPDLimits, testing::ValuesIn(kRows), [](const auto &row) {
    return QString::fromLatin1(row.param.name).remove(QRegularExpression(u"\\W"_s)).toStdString();
});

TEST(PPDLimitTable, IsTestedWholeAndFarAboveEveryRealPrinter)
{
    EXPECT_EQ(ppdLimits().size(), std::size(kRows));
    for (const PPDLimit &limit : ppdLimits())
        EXPECT_GE(limit.most, 5 * limit.largestReal) << limit.name;
}

} // namespace
