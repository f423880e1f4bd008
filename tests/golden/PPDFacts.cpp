#include "tests/golden/PPDFacts.h"

#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

PPDFacts factsOf(const QByteArray &ppd)
{
    static const QRegularExpression choiceLine(uR"(^\*(\w+) ([^ :/]+)[:/])"_s);
    static const QRegularExpression paperLine(
        uR"(^\*PageSize ([^:/]+).*PageSize\[(\d+) (\d+)\])"_s);
    PPDFacts facts;
    QString open;
    for (const QString &line : QString::fromLatin1(ppd).split(u'\n')) {
        if (line.startsWith("*OpenUI *"_L1))
            open = line.mid(9).section(u'/', 0, 0).section(u':', 0, 0);
        const auto choice = choiceLine.match(line);
        if (choice.hasMatch() && choice.captured(1) == open)
            facts.options[open] += choice.captured(2);
        const auto paper = paperLine.match(line);
        if (paper.hasMatch())
            facts.papers +=
                {paper.captured(1), paper.captured(2).toInt(), paper.captured(3).toInt()};
    }
    return facts;
}
