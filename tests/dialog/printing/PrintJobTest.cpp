#include "dialog/printing/PrintJob.h"

#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A job for the small printer, whose panels nobody knows.
class SmallJob : public testing::Test
{
protected:
    QStringList optionsFor(const PrinterSource &source)
    {
        SessionOptions options;
        options.ppdPath = m_folder.filePath(u"the.ppd"_s);
        options.bundlePath = u"/nowhere.bundle"_s;
        writeFile(options.ppdPath, smallPrinter().text());
        m_job.setPrinter(
            source, openPrinter(options, *openPPD(options.ppdPath), {{u"Finish"_s, u"Shiny"_s}}));
        return linesOf(m_job.options());
    }

    static QStringList linesOf(const JobOptions &options)
    {
        QStringList lines;
        for (const JobOption &option : options.options)
            lines += option.name + u'=' + option.value;
        return lines;
    }

    QTemporaryDir m_folder;
    PrintJob m_job;
};

const QStringList kAll{u"PageSize=A4"_s,  u"Duplex=None"_s,     u"Finish=Shiny"_s,
                       u"Weight=Light"_s, u"sides=one-sided"_s, u"print-scaling=auto"_s};

TEST_F(SmallJob, HasWhatDiffersFromTheDefaultsOfItsQueue)
{
    EXPECT_EQ(optionsFor({{}, {u"photo"_s, {}}, {}}),
              (QStringList{u"Finish=Shiny"_s, u"print-scaling=auto"_s}));
}

TEST_F(SmallJob, IsSentWithAllThatIsMarked)
{
    optionsFor({{}, {u"photo"_s, {}}, {}});
    EXPECT_EQ(linesOf(m_job.wholeOptions()), kAll);
}

TEST_F(SmallJob, HasAllThatIsMarkedWhereThePPDIsNoQueuesOwn)
{
    EXPECT_EQ(optionsFor({{}, {}, u"the.ppd"_s}), kAll);
    EXPECT_EQ(optionsFor({{}, {u"photo"_s, {}}, u"the.ppd"_s}), kAll);
}

} // namespace
