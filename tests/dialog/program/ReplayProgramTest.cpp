// The program as it is installed: output, standard error and exit status of a replay.
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct Outcome
{
    int status = -1;
    QStringList events; ///< the kinds of the lines that were printed
    QList<int> faults;  ///< the events that could not be carried out
    QString error;
};

/// Runs the program in a user's place who has no settings and no display.
Outcome runProgram(const QStringList &arguments, const QString &folder,
                   const QByteArray &input = {})
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"QT_QPA_PLATFORM"_s);
    environment.remove(u"DISPLAY"_s);
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    environment.insert(u"HOME"_s, folder);
    environment.insert(u"XDG_CONFIG_HOME"_s, folder + u"/config"_s);
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(folder);
    program.start(QStringLiteral(PROGRAM), arguments);
    program.write(input);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished());
    Outcome result{program.exitCode(), {}, {}, QString::fromUtf8(program.readAllStandardError())};
    const QList<QByteArray> lines = program.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        if (line.isEmpty())
            continue;
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        result.events << event["do"_L1].toString();
        if (event.contains("error"_L1))
            result.faults << event["event"_L1].toInt();
    }
    return result;
}

class ReplayProgram : public testing::Test
{
protected:
    ReplayProgram() { writeFile(m_folder.filePath(u"small.ppd"_s), smallPrinter().text()); }

    Outcome replay(const QByteArray &script)
    {
        writeFile(m_folder.filePath(u"the.jsonl"_s), script);
        return runProgram({u"--replay"_s, u"the.jsonl"_s}, m_folder.path());
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReplayProgram, RunsAScriptToItsEnd)
{
    const Outcome result = replay("{\"do\": \"open\", \"ppd\": \"small.ppd\"}\n"
                                  "\n"
                                  "# a comment\n"
                                  "{\"do\": \"show\", \"panel\": \"print\"}\r\n"
                                  "{\"do\": \"close\"}");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.events, (QStringList{u"open"_s, u"show"_s, u"close"_s}));
    EXPECT_EQ(result.error, QString());
}

TEST_F(ReplayProgram, AnEmptyScriptIsNoFault)
{
    const Outcome result = replay("");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.events, QStringList());
}

TEST_F(ReplayProgram, AnEventThatCannotBeCarriedOutIsNoFaultOfTheScript)
{
    const Outcome result = replay("{\"do\": \"print\"}\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.events, QStringList{u"print"_s});
    EXPECT_EQ(result.error, QString());
}

TEST_F(ReplayProgram, ReadsStandardInputWithPathsFromTheWorkingFolder)
{
    const Outcome result = runProgram({u"--replay"_s, u"-"_s}, m_folder.path(),
                                      "{\"do\": \"open\", \"ppd\": \"small.ppd\"}\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.events, QStringList{u"open"_s});
}

TEST_F(ReplayProgram, PathsOfAScriptAreRelativeToIt)
{
    writeFile(path(u"the.jsonl"_s), "{\"do\": \"open\", \"ppd\": \"small.ppd\"}\n");
    const QTemporaryDir elsewhere;
    const Outcome result = runProgram({u"--replay"_s, path(u"the.jsonl"_s)}, elsewhere.path());
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.events, QStringList{u"open"_s});
}

TEST_F(ReplayProgram, EachLineIsOutBeforeTheNextOneIsRead)
{
    QProcess program;
    program.setWorkingDirectory(m_folder.path());
    program.start(QStringLiteral(PROGRAM), {u"--replay"_s, u"-"_s});
    for (int event = 1; event <= 3; ++event) {
        program.write("{\"do\": \"state\"}\n");
        while (!program.canReadLine() && program.waitForReadyRead()) {
        }
        EXPECT_EQ(QJsonDocument::fromJson(program.readLine()).object()["event"_L1].toInt(), event);
    }
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 0);
}

TEST_F(ReplayProgram, AFaultyLineEndsTheScriptAfterTheEventsBeforeIt)
{
    const Outcome result = replay("{\"do\": \"open\", \"ppd\": \"small.ppd\"}\n"
                                  "{\"do\": \"state\"}\n"
                                  "\n"
                                  "{\"do\": \"show\"}\n"
                                  "{\"do\": \"state\"}\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.events, (QStringList{u"open"_s, u"state"_s}));
    EXPECT_EQ(result.error, u"velkaro-print: the.jsonl, line 4: show: \"panel\" is missing\n"_s);
}

TEST_F(ReplayProgram, AMissingScriptIsSaidToBeMissing)
{
    const Outcome result = runProgram({u"--replay"_s, u"none.jsonl"_s}, m_folder.path());
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error, u"velkaro-print: the script none.jsonl cannot be read: No such file or "
                            u"directory\n"_s);
}

TEST_F(ReplayProgram, AFolderIsNoScript)
{
    const Outcome result = runProgram({u"--replay"_s, u"."_s}, m_folder.path());
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error.count(u'\n'), 1);
    EXPECT_TRUE(result.error.startsWith(u"velkaro-print: "_s)) << result.error.toStdString();
}

TEST_F(ReplayProgram, ANamedPipeIsNoScript)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    const Outcome result = runProgram({u"--replay"_s, u"pipe"_s}, m_folder.path());
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error,
              u"velkaro-print: the script pipe cannot be read: it is no ordinary file\n"_s);
}

TEST_F(ReplayProgram, ADeviceIsNoScript)
{
    const Outcome result = runProgram({u"--replay"_s, u"/dev/zero"_s}, m_folder.path());
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error,
              u"velkaro-print: the script /dev/zero cannot be read: it is no ordinary file\n"_s);
}

TEST_F(ReplayProgram, ALineMayHaveAMillionBytes)
{
    const QByteArray comment = '#' + QByteArray(999'998, 'x') + '\n';
    EXPECT_EQ(replay(comment).status, 0);
    const Outcome longer = replay('#' + comment);
    EXPECT_EQ(longer.status, 2);
    EXPECT_EQ(longer.error,
              u"velkaro-print: the.jsonl, line 1: the line has more than 1000000 bytes\n"_s);
}

TEST_F(ReplayProgram, ALineBreakInANameStaysOnOneLine)
{
    const Outcome result = replay("{\"do\": \"open\", \"ppd\": \"a\\nb.ppd\"}\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error,
              u"velkaro-print: the.jsonl, line 1: The PPD file %1 does not exist.\n"_s.arg(
                  path(u"a b.ppd"_s)));
}

TEST_F(ReplayProgram, AScriptWithAPercentSignIsNamedAsItIs)
{
    writeFile(path(u"100%2.jsonl"_s), "{\"do\": \"dance\"}\n");
    const Outcome result = runProgram({u"--replay"_s, u"100%2.jsonl"_s}, m_folder.path());
    EXPECT_EQ(result.error, u"velkaro-print: 100%2.jsonl, line 1: there is no event \"dance\"\n"_s);
}

TEST_F(ReplayProgram, APPDThatCannotBeOpenedEndsTheScript)
{
    writeFile(path(u"rubbish.ppd"_s), QByteArray("\xfe\xff\x80\n\x90\n"));
    writeFile(path(u"cut.ppd"_s), smallPrinter().text().chopped(100));
    const std::pair<const char *, QString> cases[] = {
        {"none.ppd", u"The PPD file %1 does not exist."_s},
        {"rubbish.ppd", u"%1 is not a usable PPD file (line 1: Missing asterisk in column 1)."_s},
        {"cut.ppd", u"The PPD file %1 is incomplete: it ends too early. Get it again."_s},
        {".", u"%1 is not a PPD file."_s},
    };
    for (const auto &[name, sentence] : cases) {
        const Outcome result = replay("{\"do\": \"state\"}\n{\"do\": \"open\", \"ppd\": \"" +
                                      QByteArray(name) + "\"}\n{\"do\": \"state\"}\n");
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.events, QStringList{u"state"_s});
        EXPECT_EQ(result.error.toStdString(), (u"velkaro-print: the.jsonl, line 2: "_s +
                                               sentence.arg(path(QLatin1String(name))) + u'\n')
                                                  .toStdString());
    }
}

TEST_F(ReplayProgram, LeavesNothingInTheUsersFolders)
{
    const Outcome result = replay("{\"do\": \"open\", \"ppd\": \"small.ppd\"}\n"
                                  "{\"do\": \"print\"}\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_FALSE(QDir(path(u"config"_s)).exists());
    EXPECT_EQ(
        QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
        (QStringList{u"small.ppd"_s, u"the.jsonl"_s}));
}

TEST_F(ReplayProgram, APictureThatMayNotBeWrittenIsNoFaultOfTheScript)
{
    ASSERT_TRUE(QFile::copy(samplePPD(u"velkaro-px-t900"_s), path(u"full.ppd"_s)));
    writeFile(path(u"old.png"_s), "precious");
    const QByteArray script = "{\"do\": \"open\", \"ppd\": \"full.ppd\"}\n"
                              "{\"do\": \"show\", \"panel\": \"color\"}\n"
                              "{\"do\": \"picture\", \"file\": \"old.png\"}\n"
                              "{\"do\": \"picture\", \"file\": \"new.png\"}\n"
                              "{\"do\": \"picture\", \"file\": \"new.png\"}\n"
                              "{\"do\": \"picture\", \"file\": \"full.ppd\"}\n"
                              "{\"do\": \"picture\", \"file\": \"the.jsonl\"}\n";
    const QByteArray ppd = readFile(path(u"full.ppd"_s));
    Outcome result = replay(script);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.faults, (QList<int>{3, 6, 7}));
    EXPECT_EQ(readFile(path(u"old.png"_s)), "precious");

    result = runProgram({u"--force"_s, u"--replay"_s, u"the.jsonl"_s}, m_folder.path());
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.faults, (QList<int>{6, 7}));
    EXPECT_FALSE(QImage(path(u"old.png"_s)).isNull());
    EXPECT_EQ(readFile(path(u"full.ppd"_s)), ppd);
    EXPECT_EQ(readFile(path(u"the.jsonl"_s)), script);
}
