#include "dialog/program/CommandOutput.h"

#include "dialog/files/DescriptorPath.h"
#include "platform/toolkit/PlainText.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <unistd.h>

namespace {

struct StatusRow
{
    FaultKind kind;
    ExitStatus status;
};

constexpr std::array kStatuses{
    StatusRow{FaultKind::Request, ExitStatus::Usage},
    StatusRow{FaultKind::PPD, ExitStatus::Usage},
    StatusRow{FaultKind::NoPrinter, ExitStatus::Usage},
    StatusRow{FaultKind::PlugIn, ExitStatus::PlugIn},
    StatusRow{FaultKind::Vetoed, ExitStatus::Vetoed},
    StatusRow{FaultKind::Document, ExitStatus::Document},
    StatusRow{FaultKind::Output, ExitStatus::Output},
    StatusRow{FaultKind::Cancelled, ExitStatus::Cancelled},
    StatusRow{FaultKind::Unreachable, ExitStatus::Server},
    StatusRow{FaultKind::Silent, ExitStatus::Server},
    StatusRow{FaultKind::NotFound, ExitStatus::Server},
    StatusRow{FaultKind::Refused, ExitStatus::Server},
    StatusRow{FaultKind::NeedsPassword, ExitStatus::Server},
    StatusRow{FaultKind::Untrusted, ExitStatus::Server},
    StatusRow{FaultKind::Exchanged, ExitStatus::Server},
    StatusRow{FaultKind::Unsettled, ExitStatus::Server},
};

} // namespace

ExitStatus statusOf(FaultKind kind)
{
    return std::ranges::find(kStatuses, kind, &StatusRow::kind)->status;
}

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

ExitStatus failWith(const Fault &fault)
{
    return failWith(statusOf(fault.kind), fault.sentence);
}

bool report(const CommandLine &line, const QString &sentence)
{
    FILE *const stream = descriptorOf(line.output) == STDOUT_FILENO ? stderr : stdout;
    std::fputs((displayText(sentence).toLocal8Bit() + '\n').constData(), stream);
    return std::fflush(stream) == 0 && std::ferror(stream) == 0;
}

OutputTerms outputTerms(const CommandLine &line)
{
    OutputTerms terms;
    for (const QString &input : line.files + QStringList{line.ppd})
        terms.addInput(input);
    terms.mayReplace = line.force;
    return terms;
}
