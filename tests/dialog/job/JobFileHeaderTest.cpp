#include "dialog/job/JobFileHeader.h"

#include "tests/endtoend/JobPrinting.h"
#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kFirst = "Velkaro-Print-Job: 1\n";

ParsedJobFileHeader parse(const QByteArray &lines)
{
    const QByteArray file = kFirst + lines;
    return parseJobFileHeader(file, file.size());
}

TEST(JobFileHeader, TellsTheWholeJob)
{
    const ParsedJobFileHeader parsed = parse("Title: Holiday\nQueue: photo\nOption: a.b=c=d: e\n"
                                             "Option: copies=2\nDocument: 3 one two.pdf\n"
                                             "Document: 2 b\n\nabcde");
    ASSERT_EQ(parsed.flaw, JobFileFlaw::None);
    EXPECT_EQ(parsed.header.title, u"Holiday"_s);
    EXPECT_EQ(parsed.header.queue, u"photo"_s);
    EXPECT_EQ(parsed.header.options,
              (QList<JobOption>{{u"a.b"_s, u"c=d: e"_s}, {u"copies"_s, u"2"_s}}));
    ASSERT_EQ(parsed.header.documents.size(), 2);
    EXPECT_EQ(parsed.header.documents[0].length, 3);
    EXPECT_EQ(parsed.header.documents[0].name, u"one two.pdf"_s);
    EXPECT_EQ(parsed.header.documents[1].name, u"b"_s);
    EXPECT_EQ(parsed.header.end, 124);
}

TEST(JobFileHeader, GivesNoNameThatAServerMustNotHave)
{
    const ParsedJobFileHeader parsed = parse("Title: A\x1B[2J\r\nDocument: 1 ../../etc/x\x07y\n"
                                             "Document: 1 ..\nDocument: 1\n\nabc");
    ASSERT_EQ(parsed.flaw, JobFileFlaw::None);
    EXPECT_EQ(parsed.header.title, u"A [2J"_s);
    ASSERT_EQ(parsed.header.documents.size(), 3);
    EXPECT_EQ(parsed.header.documents[0].name, u"x y"_s);
    EXPECT_EQ(parsed.header.documents[1].name, u"document"_s);
    EXPECT_EQ(parsed.header.documents[2].name, u"document"_s);
}

struct Flawed
{
    const char *behaviour;
    QByteArray lines; ///< after the first one
    JobFileFlaw flaw;
};

void PrintTo(const Flawed &row, std::ostream *out)
{
    *out << row.behaviour;
}

class FlawedJobFileHeader : public testing::TestWithParam<Flawed>
{};

TEST_P(FlawedJobFileHeader, IsToldByWhatIsWrong)
{
    EXPECT_EQ(parse(GetParam().lines).flaw, GetParam().flaw);
}

QByteArray options(int count)
{
    QByteArray lines;
    for (int index = 0; index < count; ++index)
        lines += "Option: a" + QByteArray::number(index) + "=b\n";
    return lines;
}

INSTANTIATE_TEST_SUITE_P(
    Table, FlawedJobFileHeader,
    testing::Values(
        // The file ends too early.
        Flawed{"NothingMore", "", JobFileFlaw::CutShort},
        Flawed{"NoEndOfHeader", "Document: 2 a\n", JobFileFlaw::CutShort},
        Flawed{"AHalfLine", "Document: 2", JobFileFlaw::CutShort},
        Flawed{"DocumentCutShort", "Document: 10 a\n\nshort", JobFileFlaw::CutShort},
        Flawed{"SecondDocumentMissing", "Document: 5 a\nDocument: 1 b\n\nshort",
               JobFileFlaw::CutShort},
        Flawed{"LengthsThatOverflow",
               "Document: 9223372036854775807 a\nDocument: 9223372036854775807 b\n\nx",
               JobFileFlaw::CutShort},
        // What this program does not write.
        Flawed{"NoDocument", "Title: a\n\n", JobFileFlaw::Damaged},
        Flawed{"BytesOfNoDocument", "Document: 2 a\n\nlong", JobFileFlaw::Damaged},
        Flawed{"NegativeLength", "Document: -2 a\n\n", JobFileFlaw::Damaged},
        Flawed{"LengthThatIsNoNumber", "Document: a 2\n\nxx", JobFileFlaw::Damaged},
        Flawed{"LengthOfTooManyDigits", "Document: 99999999999999999999 a\n\nx",
               JobFileFlaw::Damaged},
        Flawed{"UnknownField", "Command: rm\nDocument: 1 a\n\nx", JobFileFlaw::Damaged},
        Flawed{"NoField", "Document\n\nx", JobFileFlaw::Damaged},
        Flawed{"TwoTitles", "Title: a\nTitle: b\nDocument: 1 a\n\nx", JobFileFlaw::Damaged},
        Flawed{"TwoQueues", "Queue: a\nQueue: b\nDocument: 1 a\n\nx", JobFileFlaw::Damaged},
        Flawed{"OptionThatMustNotBeSent", "Option: a b=c\nDocument: 1 a\n\nx",
               JobFileFlaw::Damaged},
        Flawed{"OptionTwice", "Option: copies=1\nOption: Copies=9\nDocument: 1 a\n\nx",
               JobFileFlaw::Damaged},
        Flawed{"NoUtf8", "Option: a=\xFF\nDocument: 1 a\n\nx", JobFileFlaw::Damaged},
        // More than a job has.
        Flawed{"AsManyDocumentsAsThereMayBe",
               QByteArray("Document: 1 a\n").repeated(1000) + '\n' + QByteArray(1000, 'x'),
               JobFileFlaw::None},
        Flawed{"OneDocumentTooMany",
               QByteArray("Document: 1 a\n").repeated(1001) + '\n' + QByteArray(1001, 'x'),
               JobFileFlaw::TooManyDocuments},
        Flawed{"AHundredThousandDocuments",
               QByteArray("Document: 1 a\n").repeated(100000) + '\n' + QByteArray(100000, 'x'),
               JobFileFlaw::TooManyDocuments},
        Flawed{"AsManyOptionsAsThereMayBe", options(1000) + "Document: 1 a\n\nx",
               JobFileFlaw::None},
        Flawed{"OneOptionTooMany", options(1001) + "Document: 1 a\n\nx",
               JobFileFlaw::TooManyOptions},
        Flawed{"ALineWithoutEnd", "Title: " + QByteArray(2'000'000, 'x'), JobFileFlaw::TooLong}),
    CaseName());

TEST(JobFileHeader, AFileOfAnotherKindIsNoJob)
{
    EXPECT_EQ(parseJobFileHeader(QByteArrayView("%PDF-1.4\n"), 9).flaw, JobFileFlaw::NoJob);
    EXPECT_EQ(parseJobFileHeader(QByteArrayView("Velkaro-Print"), 13).flaw, JobFileFlaw::NoJob);
    EXPECT_EQ(parseJobFileHeader(QByteArrayView(), 0).flaw, JobFileFlaw::NoJob);
}

TEST(JobFileHeader, OfAnotherVersionIsToldFromAnotherKind)
{
    for (const QByteArray line : {"Velkaro-Print-Job: 12\n", "Velkaro-Print-Job: 1\r\n"})
        EXPECT_EQ(parseJobFileHeader(line, line.size()).flaw, JobFileFlaw::OtherVersion);
}

struct Told
{
    const char *behaviour;
    JobFileFlaw flaw;
    const char *sentence;
};

void PrintTo(const Told &row, std::ostream *out)
{
    *out << row.behaviour;
}

class ToldFlaw : public testing::TestWithParam<Told>
{};

TEST_P(ToldFlaw, HasASentenceOfItsOwn)
{
    EXPECT_EQ(flawSentence(GetParam().flaw, u"the.job"_s).toStdString(), GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ToldFlaw,
    testing::Values(Told{"None", JobFileFlaw::None, ""},
                    Told{"NoJob", JobFileFlaw::NoJob, "the.job is no saved job."},
                    Told{"OtherVersion", JobFileFlaw::OtherVersion,
                         "The saved job the.job is damaged, or another version of Velkaro Print "
                         "has written it."},
                    Told{"CutShort", JobFileFlaw::CutShort,
                         "The saved job the.job is cut short: its end is missing."},
                    Told{"Damaged", JobFileFlaw::Damaged, "The saved job the.job is damaged."},
                    Told{"TooLong", JobFileFlaw::TooLong,
                         "The saved job the.job is damaged: its header has no end."},
                    Told{"TooManyDocuments", JobFileFlaw::TooManyDocuments,
                         "The saved job the.job has too many documents: 1000 are the most."},
                    Told{"TooManyOptions", JobFileFlaw::TooManyOptions,
                         "The saved job the.job has too many settings: 1000 are the most."}),
    CaseName());

} // namespace
