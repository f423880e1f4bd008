#include "dialog/program/CommandOutput.h"

#include "platform/toolkit/PlainText.h"

#include <cstdio>

void warn(const QString &sentence)
{
    const QByteArray line = "velkaro-print: " + displayText(sentence).toLocal8Bit() + '\n';
    std::fputs(line.constData(), stderr);
}

ExitStatus failWith(ExitStatus status, const QString &sentence)
{
    warn(sentence);
    return status;
}

void report(const QString &sentence)
{
    std::fputs((displayText(sentence).toLocal8Bit() + '\n').constData(), stdout);
    std::fflush(stdout);
}

OutputTerms outputTerms(const CommandLine &line)
{
    OutputTerms terms;
    for (const QString &input : line.files + QStringList{line.ppd})
        terms.addInput(input);
    terms.mayReplace = line.force;
    return terms;
}

OutputTerms jobFileTerms(const CommandLine &line)
{
    OutputTerms terms = outputTerms(line);
    terms.addInput(line.record);
    return terms;
}
