#include "dialog/printing/PrinterDoubts.h"

#include "dialog/cups/PrinterCondition.h"
#include "dialog/job/ColorMode.h"
#include "dialog/printing/PrintJob.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct DoubtfulPrinter
{
    const char *behaviour;
    QList<JobOption> settings; ///< saved for the printer
    PrinterCondition condition;
    QStringList doubts;
};

void PrintTo(const DoubtfulPrinter &row, std::ostream *out)
{
    *out << row.behaviour;
}

class PrinterDoubts : public testing::TestWithParam<DoubtfulPrinter>
{
protected:
    PrinterDoubts()
    {
        SessionOptions options;
        options.ppdPath = m_folder.filePath(u"small.ppd"_s);
        writeFile(options.ppdPath,
                  PPDSource()
                      .papers({{"A4", 595, 842}, {"A5", 420, 595}})
                      .option("ColorModel", {"Gray/Black", "RGB/Color"})
                      .option("InputSlot", {"Auto", "Tray1/Upper Tray", "Tray2/Lower Tray"})
                      .text());
        m_job.setPrinter({}, openPrinter(options, *openPPD(options.ppdPath), GetParam().settings));
    }

    QTemporaryDir m_folder;
    PrintJob m_job;
};

TEST_P(PrinterDoubts, AreOnWhatTheJobNeeds)
{
    EXPECT_EQ(doubtsAboutPrinter(m_job, GetParam().condition), GetParam().doubts);
}

const QList<Supply> kLowCyan{{u"Cyan"_s, {0xff00ffff}, false, 8, SupplyState::Low}};
const QList<LoadedMedium> kTrays{{u"tray-1"_s, 595, 842}, {u"tray-2"_s, 420, 595}};
const QList<LoadedMedium> kOthers{{{}, 612, 792}, {{}, 420, 595}};

INSTANTIATE_TEST_SUITE_P(
    Table, PrinterDoubts,
    testing::Values(
        DoubtfulPrinter{"NothingIsKnown", {}, {}, {}},
        DoubtfulPrinter{"ABlackJobByDefault", {}, {0, kLowCyan, {}}, {}},
        DoubtfulPrinter{"AColorJob",
                        {{u"ColorModel"_s, u"RGB"_s}},
                        {0, kLowCyan, {}},
                        {u"Running low in the printer: Cyan."_s}},
        DoubtfulPrinter{"PaperThatIsThere", {}, {0, {}, kTrays}, {}},
        DoubtfulPrinter{"PaperThatIsInAnotherTray",
                        {{u"InputSlot"_s, u"Tray2"_s}},
                        {0, {}, kTrays},
                        {u"The paper of this job is not loaded: A4. There is A5."_s}},
        DoubtfulPrinter{"PaperThatIsNowhere",
                        {},
                        {0, {}, kOthers},
                        {u"The paper of this job is not loaded: A4. There is 216 × 279 mm, A5."_s}},
        DoubtfulPrinter{
            "PaperAndInk",
            {{u"ColorModel"_s, u"RGB"_s}, {u"PageSize"_s, u"A5"_s}, {u"InputSlot"_s, u"Tray1"_s}},
            {0, kLowCyan, kTrays},
            {u"Running low in the printer: Cyan."_s,
             u"The paper of this job is not loaded: A5. There is A4."_s}}),
    CaseName());

struct Mode
{
    const char *behaviour;
    QList<JobOption> options;
    bool mayPrintInColor;
};

class ColorMode : public testing::TestWithParam<Mode>
{};

TEST_P(ColorMode, SaysWhetherAJobNeedsColors)
{
    EXPECT_EQ(mayPrintInColor(GetParam().options), GetParam().mayPrintInColor);
}

const QString kMode = u"print-color-mode"_s;

INSTANTIATE_TEST_SUITE_P(
    Table, ColorMode,
    testing::Values(Mode{"NotSaid", {{u"copies"_s, u"2"_s}}, true},
                    Mode{"Color", {{kMode, u"color"_s}}, true},
                    Mode{"AsThePrinterSees", {{kMode, u"auto"_s}}, true},
                    Mode{"BlackAlone", {{kMode, u"monochrome"_s}}, false},
                    Mode{"NoGrey", {{kMode, u"bi-level"_s}}, false},
                    Mode{"GreyMixedOfColors", {{kMode, u"process-monochrome"_s}}, true},
                    Mode{"TheLastCounts", {{kMode, u"monochrome"_s}, {kMode, u"color"_s}}, true}),
    CaseName());

} // namespace
