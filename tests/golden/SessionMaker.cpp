#include "tests/golden/SessionMaker.h"

#include "tests/golden/GoldenCase.h"
#include "tests/golden/RandomEvent.h"
#include "tests/golden/RandomOpen.h"
#include "tests/golden/RandomPPD.h"

#include <QtCore/QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestAnswer = 30000; // ms
constexpr int kReopened = 4;          // per cent of the events
constexpr int kReopenedClosed = 50;   // the same where no panel is there
constexpr int kClosedStart = 2;       // per cent: begins without an open
constexpr int kFaultyEnd = 3;         // per cent

/// The event as a line of a script: what it does stands first.
QByteArray scriptLine(const QJsonObject &event)
{
    QJsonObject rest = event;
    const QJsonObject start{{u"do"_s, rest.take("do"_L1)}};
    const QByteArray first = QJsonDocument(start).toJson(QJsonDocument::Compact);
    const QByteArray others = QJsonDocument(rest).toJson(QJsonDocument::Compact);
    return rest.isEmpty() ? first : first.chopped(1) + ',' + others.mid(1);
}

/// Lines that a script cannot go on from.
QByteArray faultyLine(Random &random)
{
    static const QByteArrayList lines{
        R"({"do":"open","ppd":"missing.ppd"})",
        R"({"do":"open","ppd":"broken.ppd"})",
        R"({"do":"open"})",
        R"({"do":"dance"})",
        R"({"do":"show"})",
        R"({"do":"pick","panel":"print","control":"mediaTypePopup"})",
        R"({"do":"slide","keyword":"VKRed","value":"3"})",
        R"({"do":"paper","name":"A4","width":1,"height":2})",
        R"({"do":"print","answers":[{"button":-1}]})",
        R"({"do":"open","ppd":"velkaro-px-t900.ppd","lacks":["print"]})",
        R"({"do":"open","ppd":"velkaro-px-t900.ppd","ticket":{"a":[]}})",
        "not JSON",
        "[1, 2]",
    };
    return random.pick(lines);
}

class ScriptWriter
{
public:
    ScriptWriter(const ProgramUnderTest &program, quint32 seed, quint32 index)
        : m_program(program), m_random(seed, index)
    {
        m_workplace.prepare(m_process, u"en"_s);
        m_process.start(program.path, {u"--replay"_s, u"-"_s});
    }

    ~ScriptWriter()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(kLongestAnswer);
    }

    QByteArray write()
    {
        if (!m_random.chance(kClosedStart))
            open();
        for (int count = m_random.between(6, 26); count > 0; --count)
            writeEvent();
        if (m_random.chance(kFaultyEnd))
            m_script += faultyLine(m_random) + '\n';
        return m_script;
    }

private:
    void open()
    {
        if (m_ppds == 0 || m_random.chance(60))
            preparePPD();
        run(randomOpen(m_random, m_ppd));
    }

    void preparePPD()
    {
        const QString name = u"printer-%1.ppd"_s.arg(++m_ppds);
        m_ppd = randomPPD(m_random, m_program, name);
        m_script += recipeComment(name, m_ppd.recipe);
        m_workplace.writePPD(name, m_ppd.recipe, m_program);
    }

    void writeEvent()
    {
        const bool isClosed = m_view.panels().isEmpty();
        if (m_random.chance(isClosed ? kReopenedClosed : kReopened))
            return open();
        if (m_ppds == 0)
            return run({{u"do"_s, u"state"_s}});
        run(randomEvent(m_random, {m_view, m_ppd.facts, ++m_number}));
    }

    void run(const QJsonObject &event)
    {
        const QByteArray line = scriptLine(event) + '\n';
        m_script += line;
        m_process.write(line);
        while (!m_process.canReadLine() && m_process.waitForReadyRead(kLongestAnswer)) {
        }
        m_view = SessionView(QJsonDocument::fromJson(m_process.readLine()).object());
    }

    const ProgramUnderTest &m_program;
    Random m_random;
    Workplace m_workplace;
    QProcess m_process;
    QByteArray m_script;
    PreparedPPD m_ppd;
    SessionView m_view;
    int m_ppds = 0;
    int m_number = 0;
};

} // namespace

QByteArray randomScript(const ProgramUnderTest &program, quint32 seed, quint32 index)
{
    return ScriptWriter(program, seed, index).write();
}
