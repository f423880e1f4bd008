// What the whole program writes, and what it does not write over.
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// In the arguments and sentences "%" is the folder of the test, which has the document "own.ps", a
/// second name "hard.ps" and a link "link.ps" to it, the printer "own.ppd" and an unrelated file
/// "old".
struct Case
{
    const char *behaviour;
    QStringList arguments;
    int status;
    const char *error; ///< the whole of standard error, without the program's name
    QStringList added; ///< the files that are there besides
};

void PrintTo(const Case &row, std::ostream *out)
{
    *out << row.behaviour;
}

class Output : public testing::TestWithParam<Case>
{
protected:
    void SetUp() override
    {
        writeFile(path("own.ps"), "%!PS\n");
        writeFile(path("old"), "precious");
        ASSERT_TRUE(QFile::copy(samplePPD(u"velkaro-px-t900"_s), path("own.ppd")));
        ASSERT_EQ(link(path("own.ps").toUtf8().constData(), path("hard.ps").toUtf8().constData()),
                  0);
        ASSERT_TRUE(QFile::link(path("own.ps"), path("link.ps")));
    }

    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QString inFolder(const QString &text) const
    {
        return QString(text).replace(u'%', m_folder.path());
    }

    QStringList run(const QStringList &options)
    {
        QStringList arguments{u"--ppd"_s, path("own.ppd")};
        for (const QString &option : options)
            arguments += inFolder(option);
        return arguments;
    }

    QTemporaryDir m_folder;
};

TEST_P(Output, LosesNothing)
{
    const ProgramRun done = runProgram(run(GetParam().arguments));
    EXPECT_EQ(done.status, GetParam().status);
    const QString error = inFolder(QString::fromUtf8(GetParam().error));
    EXPECT_EQ(done.errors, error.isEmpty() ? error : u"velkaro-print: "_s + error + u'\n');
    EXPECT_EQ(readFile(path("own.ps")), "%!PS\n");
    EXPECT_EQ(readFile(path("own.ppd")), readFile(samplePPD(u"velkaro-px-t900"_s)));
    EXPECT_EQ(readFile(path("old")) == "precious",
              !GetParam().arguments.contains(u"--force"_s) || GetParam().status != 0);
    QStringList names{u"hard.ps"_s, u"link.ps"_s, u"old"_s, u"own.ppd"_s, u"own.ps"_s};
    names += GetParam().added;
    names.sort();
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name), names);
}

QStringList keep(const QString &output, const QString &document = u"%/own.ps"_s)
{
    return {u"--no-dialog"_s, u"--output"_s, output, document};
}

QStringList force(const QStringList &arguments)
{
    return QStringList{u"--force"_s} + arguments;
}

QStringList record(const QString &script, const QString &output)
{
    return QStringList{u"--record"_s, script} + keep(output);
}

QStringList paint(const QString &picture)
{
    return {u"--screenshot"_s, picture, u"%/own.ps"_s};
}

constexpr auto kOldExists = "The file %/old exists already; --force replaces it.";
constexpr auto kFull = "The file /dev/full cannot be written: No space left on device.";

INSTANTIATE_TEST_SUITE_P(
    Jobs, Output,
    testing::Values(
        Case{"UnderAFreeName", keep(u"%/new"_s), 0, "", {u"new"_s}},
        Case{"OverAFile", keep(u"%/old"_s), 5, kOldExists, {}},
        Case{"OverAFileByForce", force(keep(u"%/old"_s)), 0, "", {}},
        Case{"OverTheDocument",
             force(keep(u"%/own.ps"_s)),
             5,
             "Nothing is written over %/own.ps: it is in use for this.",
             {}},
        Case{"OverASecondNameOfTheDocument",
             force(keep(u"%/hard.ps"_s)),
             5,
             "Nothing is written over %/hard.ps: it is in use for this.",
             {}},
        Case{"OverALinkToTheDocument",
             force(keep(u"%/link.ps"_s)),
             5,
             "Nothing is written over %/link.ps: it is in use for this.",
             {}},
        Case{"OverTheDocumentThatWasGivenAsALink",
             force(keep(u"%/own.ps"_s, u"%/link.ps"_s)),
             5,
             "Nothing is written over %/own.ps: it is in use for this.",
             {}},
        Case{"OverThePPD",
             force(keep(u"%/own.ppd"_s)),
             5,
             "Nothing is written over %/own.ppd: it is in use for this.",
             {}},
        Case{"OverAFolder", force(keep(u"%"_s)), 5, "% is a folder: it cannot be written.", {}},
        Case{"IntoADevice", keep(u"/dev/null"_s), 0, "", {}},
        Case{"IntoAFullDevice", keep(u"/dev/full"_s), 5, kFull, {}}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Recordings, Output,
    testing::Values(
        Case{"UnderAFreeName",
             record(u"%/s.jsonl"_s, u"%/new"_s),
             0,
             "",
             {u"new"_s, u"s.jsonl"_s, u"s.ppd"_s}},
        Case{"BesideThePrinterOfItsName",
             record(u"%/own.jsonl"_s, u"%/new"_s),
             0,
             "",
             {u"new"_s, u"own.jsonl"_s}},
        Case{"OverAFile", record(u"%/old"_s, u"%/new"_s), 5, kOldExists, {}},
        Case{"OverTheDocument",
             force(record(u"%/own.ps"_s, u"%/new"_s)),
             5,
             "Nothing is written over %/own.ps: it is in use for this.",
             {}},
        Case{"OverThePPD",
             force(record(u"%/own.ppd"_s, u"%/new"_s)),
             5,
             "Nothing is written over %/own.ppd: it is in use for this.",
             {}},
        Case{"WhereTheJobGoes",
             force(record(u"%/new"_s, u"%/new"_s)),
             5,
             "Nothing is written over %/new: it is in use for this.",
             {u"new"_s, u"new.ppd"_s}},
        Case{"IntoAFullDevice", record(u"/dev/full"_s, u"%/new"_s), 5, kFull, {u"new"_s}}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Pictures, Output,
    testing::Values(Case{"UnderAFreeName", paint(u"%/new.png"_s), 0, "", {u"new.png"_s}},
                    Case{"OverAFile", paint(u"%/old"_s), 5, kOldExists, {}},
                    Case{"OverAFileByForce", force(paint(u"%/old"_s)), 0, "", {}},
                    Case{"OverTheDocument",
                         force(paint(u"%/own.ps"_s)),
                         5,
                         "Nothing is written over %/own.ps: it is in use for this.",
                         {}},
                    Case{"OverThePPD",
                         force(paint(u"%/hard.ps"_s)),
                         5,
                         "Nothing is written over %/hard.ps: it is in use for this.",
                         {}},
                    Case{"IntoAFullDevice", paint(u"/dev/full"_s), 5, kFull, {}}),
    CaseName());

TEST(StandardOutput, HasTheJobAloneAndTheReportIsOnStandardError)
{
    const QTemporaryDir folder;
    const QString document = folder.filePath(u"own.ps"_s);
    writeFile(document, "%!PS\n");
    for (const QString &output : {u"-"_s, u"/dev/stdout"_s}) {
        const ProgramRun done = runProgram({u"--ppd"_s, samplePPD(u"velkaro-px-t900"_s),
                                            u"--no-dialog"_s, u"--output"_s, output, document});
        EXPECT_EQ(done.status, 0);
        EXPECT_TRUE(done.output.startsWith(u"Velkaro-Print-Job: 1\nTitle: own.ps\n"_s))
            << done.output.toStdString();
        EXPECT_TRUE(done.output.endsWith(u"\nDocument: 5 own.ps\n\n%!PS\n"_s))
            << done.output.toStdString();
        EXPECT_EQ(done.errors, u"The job was written to standard output.\n"_s);
    }
}

/// The size of the picture of the dialog.
QSize pictureAt(const char *scale)
{
    const QTemporaryDir folder;
    const QString document = folder.filePath(u"own.ps"_s);
    const QString picture = folder.filePath(u"own.png"_s);
    writeFile(document, "%!PS\n");
    qputenv("QT_SCALE_FACTOR", scale);
    const ProgramRun done = runProgram(
        {u"--ppd"_s, samplePPD(u"velkaro-px-t900"_s), u"--screenshot"_s, picture, document});
    qunsetenv("QT_SCALE_FACTOR");
    EXPECT_EQ(done.status, 0) << done.errors.toStdString();
    return QImage(picture).size();
}

TEST(APicture, IsWholeAtEveryScale)
{
    const QSize once = pictureAt("1");
    const QSize twice = pictureAt("2");
    EXPECT_GE(twice.width(), 2 * once.width() - 20);
    EXPECT_GE(twice.height(), 2 * once.height() - 20);
}

TEST(ASavedJob, ThatCanNeverBeSentIsSaidWhenItIsSaved)
{
    const QTemporaryDir folder;
    const QString document = folder.filePath(u"own.ps"_s);
    writeFile(document, "%!PS\n");
    const QString job = folder.filePath(u"own.job"_s);
    const ProgramRun done = runProgram({u"--ppd"_s, samplePPD(u"velkaro-px-t900"_s), u"-d"_s,
                                        u"photo"_s, u"--no-dialog"_s, u"--output"_s, job, document},
                                       "Dest photo raw=true\n");
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.errors, u"velkaro-print: The job in %1 can be looked at but not sent: it sets "
                           "raw, which no saved job may. Remove that from the settings saved for "
                           "the queue.\n"_s.arg(job));
}

} // namespace
