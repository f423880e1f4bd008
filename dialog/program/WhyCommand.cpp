#include "dialog/program/WhyCommand.h"

#include "dialog/advice/Advising.h"
#include "dialog/printing/PrintController.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/printing/StandardSettings.h"
#include "dialog/program/CommandOutput.h"
#include "dialog/program/Explanation.h"
#include "dialog/program/LauncherOutput.h"
#include "dialog/work/EndSignals.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QJsonDocument>

#include <cstdio>

namespace {

void print(const CommandLine &line, const Advice &advice)
{
    if (line.json) {
        const QByteArray object =
            QJsonDocument(adviceReport(advice)).toJson(QJsonDocument::Compact);
        std::printf("%s\n", object.constData());
        return;
    }
    report(line, advice.sentence);
    if (const QString options = optionsToType(advice); !options.isNull())
        report(line, options);
}

Result<FoundPrinter> findPrinter(PrintController &controller)
{
    Result<FoundPrinter> result = FoundPrinter();
    QEventLoop loop;
    const EndSignals signals([&] { controller.cancel(); });
    controller.findPrinter(controller.wantedPrinter(), [&](const Result<FoundPrinter> &found) {
        result = found;
        loop.quit();
    });
    loop.exec();
    if (result && !result->shortcomings.isEmpty())
        return result->shortcomings.constFirst();
    return result;
}

/// Makes the other settings. What could not be had is told, and does not stop the answer.
Result<> makeOthers(PrintController &controller)
{
    ScriptedAnswers answers(false);
    Result<> made =
        controller.makeRequestedSettings([&](const RequestedChoice &) { answers.answerSheets(); });
    if (made.faultKind() != FaultKind::Vetoed)
        return made;
    warn(made.sentence());
    return {};
}

/// Asked for by the printer's name for the setting, or by the one that every printer has.
Result<PPDMark> wantedChoice(const PrintJob &job, const RequestedChoice &asked)
{
    if (!job.session())
        return knownSetting(job, asked).fault(); // which says that there is no PPD
    const NamedWishes named = inPrintersNames(job.ppd(), job.attributeRules(), {asked});
    if (!named.state)
        return named.state.fault();
    const RequestedChoice &wanted = named.wanted.constFirst();
    return choiceOfPPD(*job.session(), wanted.keyword, wanted.choice);
}

Result<Advice> findOut(PrintController &controller, const RequestedChoice &asked)
{
    const Result<FoundPrinter> found = findPrinter(controller);
    if (!found)
        return found.fault();
    const Result<PPDMark> wanted = wantedChoice(controller.job(), asked);
    if (!wanted)
        return wanted.fault();
    if (const Result<> made = makeOthers(controller); !made)
        return made.fault();
    if (const std::optional<Advice> advice = adviceOn(*controller.job().session(), *wanted))
        return *advice;
    return Fault{FaultKind::PlugIn,
                 QCoreApplication::translate("WhyCommand", "This cannot be explained.")};
}

} // namespace

ExitStatus runWhyCommand(const CommandLine &line)
{
    PrintController controller(line);
    if (const Result<> checked = checkOwnSettings(line.choices); !checked)
        return failWith(checked.fault());
    const Result<Advice> advice = findOut(controller, *line.why);
    if (!advice)
        return failWith(advice.fault());
    print(line, *advice);
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? ExitStatus::Done
                                                                : failWithoutOutput();
}
