#include "dialog/printing/PrinterOpening.h"

#include "dialog/host/HostSession.h"
#include "dialog/printing/OwnSettings.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/printing/YieldedSettings.h"

#include <QtCore/QCoreApplication>

#include <utility>

Result<FoundPrinter> PrinterOpening::take(const PrinterSource &source, FetchedPrinter &fetched,
                                          const QString &plugIn)
{
    m_job.closePrinter(); // two sessions at once would hear of each other
    m_origin.reset();
    PrinterSource found = source;
    found.queue = fetched.queue;
    const QList<JobOption> starting = startingOptions(
        found, fetched.opened && *fetched.opened ? (*fetched.opened)->ppd.get() : nullptr);
    const Result<> state = fetched.opened.andThen([&] { return checkCount(starting, found); });
    if (!state) {
        m_job.setPrinter(found, {});
        return state.fault();
    }
    FoundPrinter printer;
    SessionOptions options;
    options.ppdPath = fetched.ppdPath;
    options.bundlePath = plugIn;
    const auto text = *fetched.opened ? (*fetched.opened)->text : nullptr;
    OpenedPrinter opened =
        open(options, *std::move(fetched.opened), starting, printer.shortcomings);
    if (opened.session) {
        options.alertMemory = opened.session->alertMemory();
        m_origin = std::make_shared<PrinterOrigin>(
            PrinterOrigin{found, options, fetched.kept, text, starting});
    }
    printer.notes = notesOnStart(found, opened.saved.missing);
    if (!opened.saved.unusable.isEmpty()) {
        const JobOption &first = opened.saved.unusable.constFirst();
        const Fault fault = noSuchValue({first.name, first.value}, ownValues(first.name));
        printer.start = Fault{fault.kind, savedSentence(fault.sentence)};
    }
    m_job.setPrinter(found, std::move(opened));
    if (m_job.session() && m_job.session()->plugInFault())
        printer.shortcomings += Fault{FaultKind::PlugIn, m_job.session()->plugInFault()->sentence};
    else if (m_job.session() && m_job.session()->hasPlugIn() && m_job.session()->panels().empty())
        printer.shortcomings +=
            Fault{FaultKind::PlugIn,
                  QCoreApplication::translate(
                      "PrinterOpening", "The plug-in could not attach its panels to this printer. "
                                        "Its rules and checks are missing.")};
    return printer;
}

OpenedPrinter PrinterOpening::open(const SessionOptions &options, std::optional<OpenedPPD> ppd,
                                   const QList<JobOption> &starting, QList<Fault> &shortcomings)
{
    return openPrinter(options, std::move(ppd), starting,
                       [this, &shortcomings](HostSession &session) {
                           for (const SessionHook &hook : std::as_const(m_hooks))
                               if (const Result<> hooked = hook(session); !hooked)
                                   shortcomings += hooked.fault();
                       });
}

void PrinterOpening::prepareToReopen()
{
    if (!m_origin || m_sparing.isGoingOn() || (m_spare && m_spareOrigin == m_origin))
        return;
    m_spare.reset();
    m_sparing.begin<Result<OpenedPPD>>(
        kFileTimeout,
        [text = m_origin->ppd](CallGuard &) { return reopenPPD(text, PPDTexts::InUserLanguage); },
        [this, origin = m_origin](Result<OpenedPPD> opened) {
            if (!opened)
                return;
            m_spare = *std::move(opened);
            m_spareOrigin = origin;
        });
}

Result<> PrinterOpening::reopen(const std::shared_ptr<const PrinterOrigin> &origin)
{
    std::optional<OpenedPPD> spare = std::exchange(m_spare, std::nullopt);
    Result<OpenedPPD> ppd = spare && std::exchange(m_spareOrigin, nullptr) == origin
                                ? Result<OpenedPPD>(*std::move(spare))
                                : reopenPPD(origin->ppd, PPDTexts::InUserLanguage);
    if (!ppd)
        return ppd.fault();
    m_job.closePrinter();      // two sessions at once would hear of each other
    QList<Fault> shortcomings; // were told when it was opened first
    m_job.setPrinter(origin->source,
                     open(origin->options, *std::move(ppd), origin->starting, shortcomings));
    m_origin = origin;
    return {};
}
