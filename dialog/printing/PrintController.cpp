#include "dialog/printing/PrintController.h"

#include "dialog/cups/CoverPages.h"
#include "dialog/cups/JobSettlement.h"
#include "dialog/cups/Passwords.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/job/JobFileWriter.h"
#include "dialog/job/PipeDocuments.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/LastPrinter.h"
#include "dialog/printing/LostTogether.h"
#include "dialog/printing/OwnSettings.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/SavedJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/printing/StandardSettings.h"
#include "dialog/work/BackgroundCall.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSysInfo>
#include <QtCore/QTimer>

#include <algorithm>
#include <utility>

namespace {

/// The user's address on this machine, as `lp -m` has it.
QString ownAddress()
{
    return QString::fromUtf8(requestingUser()) + u'@' + QSysInfo::machineHostName();
}

QString savedSentence(const QString &sentence)
{
    return QCoreApplication::translate("PrintController", "Saved for this printer: %1")
        .arg(sentence);
}

} // namespace

PrintController::PrintController(PrintWishes wishes, QObject *parent)
    : QObject(parent), m_wishes(std::move(wishes))
{
    m_job.setTitle(m_wishes.title);
}

// The calls go first: nothing of theirs arrives any more.
PrintController::~PrintController()
{
    delete m_call;
    delete m_reading;
    delete m_listing;
    delete m_sparing;
    delete m_covers;
    delete m_asking;
}

/// Starts the work in place of the call's former one. A null `givenUp`: nobody gives it up. Whoever
/// is told of the outcome may begin the next call.
template <typename Value>
void PrintController::begin(QPointer<BackgroundCall> &call, std::chrono::milliseconds timeout,
                            std::function<Value(CallGuard &)> work, std::function<void(Value)> take,
                            std::function<Value()> givenUp)
{
    delete call;
    BackgroundCall::Outcome outcome;
    if (givenUp)
        outcome = [&call, take, givenUp] {
            call.clear();
            take(givenUp());
        };
    call = new BackgroundCall(
        this, timeout,
        [&call, work = std::move(work), take](CallGuard &guard) -> BackgroundCall::Outcome {
            const auto value = std::make_shared<Value>(work(guard));
            return [&call, take, value] {
                call.clear();
                take(std::move(*value));
            };
        },
        std::move(outcome));
}

Result<> PrintController::openDocuments(const QStringList &paths)
{
    const Result<Documents> opened = ::openDocuments(paths);
    if (!opened)
        return opened.fault();
    stopReading();
    m_job.setDocuments(*opened);
    return {};
}

void PrintController::readPipes(Then<std::monostate> then)
{
    if (!hasPipes(m_job.documents())) {
        then({});
        return;
    }
    begin<Result<Documents>>(
        m_reading, kFileTimeout,
        [documents = m_job.documents()](CallGuard &guard) { return ::readPipes(documents, guard); },
        [this, then = std::move(then)](const Result<Documents> &read) {
            m_job.setDocuments(read ? *read : Documents());
            then(read ? Result<>() : read.fault());
        });
}

PrinterSource PrintController::wantedPrinter() const
{
    PrinterSource source{m_wishes.server, {}, m_wishes.ppd};
    if (m_wishes.ppd.isNull() || !m_wishes.queue.isNull())
        source.queue = wantedQueue(m_wishes.queue, m_wishes.instance);
    return source;
}

bool PrintController::mayChoosePrinter() const
{
    return m_wishes.queue.isNull() && m_wishes.ppd.isNull();
}

Result<PrinterChoice> PrintController::choosePrinter(const QList<Destination> &listed) const
{
    return chosenPrinter(
        {lastPrinter(m_wishes.server), environmentQueue(), savedDefaultQueue(), listed});
}

void PrintController::findPrinter(const PrinterSource &source, Then<FoundPrinter> then)
{
    if (const Result<> known = checkInstance(source.queue); !known) {
        m_job.setPrinter(source, {});
        QTimer::singleShot(0, this, [then = std::move(then), known] { then(known.fault()); });
        return;
    }
    begin<FetchedPrinter>(
        m_call, kServerTimeout,
        [source](CallGuard &guard) {
            const PasswordScope scope(PasswordPurpose::Settings, source.queue.queue);
            return fetchPrinter(source, guard);
        },
        [this, source, then = std::move(then)](FetchedPrinter fetched) {
            then(takePrinter(source, fetched));
        },
        [source] { return givenUpPrinter(source); });
}

Result<FoundPrinter> PrintController::takePrinter(const PrinterSource &source,
                                                  FetchedPrinter &fetched)
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
    options.bundlePath = m_wishes.plugIn;
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
                      "PrintController", "The plug-in could not attach its panels to this printer. "
                                         "Its rules and checks are missing.")};
    return printer;
}

OpenedPrinter PrintController::open(const SessionOptions &options, std::optional<OpenedPPD> ppd,
                                    const QList<JobOption> &starting, QList<Fault> &shortcomings)
{
    return openPrinter(options, std::move(ppd), starting,
                       [this, &shortcomings](HostSession &session) {
                           session.addObserver(&m_unsaved);
                           for (const SessionHook &hook : std::as_const(m_hooks))
                               if (const Result<> hooked = hook(session); !hooked)
                                   shortcomings += hooked.fault();
                       });
}

void PrintController::prepareToReopen()
{
    if (!m_origin || m_sparing || (m_spare && m_spareOrigin == m_origin))
        return;
    m_spare.reset();
    begin<Result<OpenedPPD>>(
        m_sparing, kFileTimeout,
        [text = m_origin->ppd](CallGuard &) { return reopenPPD(text, PPDTexts::InUserLanguage); },
        [this, origin = m_origin](Result<OpenedPPD> opened) {
            if (!opened)
                return;
            m_spare = *std::move(opened);
            m_spareOrigin = origin;
        });
}

Result<> PrintController::reopen(const std::shared_ptr<const PrinterOrigin> &origin)
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

void PrintController::listPrinters(Asking asking, Then<QList<Destination>> then)
{
    using List = Result<QList<Destination>>;
    begin<List>(
        m_listing, kServerTimeout,
        [server = m_wishes.server, asking](CallGuard &guard) {
            std::optional<PasswordScope> scope;
            if (asking == Asking::Somebody)
                scope.emplace(PasswordPurpose::Listing, QString());
            return listDestinations(server, guard);
        },
        std::move(then), [server = m_wishes.server] { return List(silentServer(server)); });
}

void PrintController::listCoverPages(Then<QStringList> then)
{
    const PrinterSource source = m_job.source();
    begin<Result<QStringList>>(
        m_covers, kServerTimeout,
        [source](CallGuard &guard) { return coverPages(source.server, source.queue.queue, guard); },
        std::move(then), [source] { return Result<QStringList>(silentServer(source.server)); });
}

void PrintController::askCondition(Then<PrinterCondition> then)
{
    const PrinterSource source = m_job.source();
    begin<Result<PrinterCondition>>(
        m_asking, kServerTimeout,
        [source](CallGuard &guard) {
            return ::askCondition(source.server, source.queue.queue, guard);
        },
        std::move(then),
        [source] { return Result<PrinterCondition>(silentServer(source.server)); });
}

NamedWishes PrintController::namedWishes() const
{
    QList<RequestedChoice> wanted = m_wishes.choices;
    if (m_wishes.mail)
        wanted += RequestedChoice{QStringLiteral("notify-recipient-uri"), ownAddress()};
    if (!m_wishes.paper.isNull())
        wanted += RequestedChoice{QStringLiteral("PageSize"), m_wishes.paper};
    return inPrintersNames(m_job.ppd(), wanted);
}

Result<>
PrintController::makeRequestedSettings(const std::function<void(const RequestedChoice &)> &madeOne)
{
    const NamedWishes named = namedWishes();
    const Result<> made = makeSettings(m_job, named.wanted, madeOne);
    return named.state ? made : named.state;
}

QList<RequestedChoice> PrintController::lostSettings() const
{
    return ::lostSettings(m_job, namedWishes().wanted);
}

Result<> PrintController::makeAgainWithout(const QList<RequestedChoice> &lost)
{
    const std::shared_ptr<const PrinterOrigin> origin = m_origin;
    if (const Result<> opened = reopen(origin); !opened)
        return opened;
    QList<RequestedChoice> wanted = namedWishes().wanted;
    wanted.removeIf([&](const RequestedChoice &one) {
        const Result<RequestedChoice> spelled = knownSetting(m_job, one);
        return spelled && lost.contains(*spelled);
    });
    return makeSettings(m_job, wanted);
}

QList<RequestedChoice> PrintController::savedSettings() const
{
    const QList<RequestedChoice> wished = namedWishes().wanted;
    QList<RequestedChoice> saved;
    for (const JobOption &option : m_origin->starting)
        if (findOption(m_job.ppd(), option.name) &&
            std::ranges::none_of(wished, [&](const RequestedChoice &wish) {
                return isSameName(wish.keyword, option.name);
            }))
            saved += RequestedChoice{option.name, option.value};
    return saved;
}

QStringList PrintController::yieldedSettings()
{
    if (!m_origin || !m_job.session())
        return {};
    QList<RequestedChoice> standing = savedSettings();
    QStringList sentences;
    for (const RequestedChoice &lost : ::lostSettings(m_job, standing))
        sentences += savedSentence(lossSentence(m_job, lost));
    standing.removeIf(
        [this](const RequestedChoice &one) { return !::lostSettings(m_job, {one}).isEmpty(); });
    QList<RequestedChoice> wished = namedWishes().wanted;
    wished.removeIf(
        [this](const RequestedChoice &wish) { return !findOption(m_job.ppd(), wish.keyword); });
    if (standing.isEmpty() || wished.isEmpty())
        return sentences;
    for (const RequestedChoice &one : lostTogether(m_job, standing, wished))
        sentences += savedSentence(
            QCoreApplication::translate("PrintController",
                                        "%1 cannot be chosen together with what was asked for; it "
                                        "is sent as it was saved.")
                .arg(displayText(one.keyword) + u'=' + displayText(one.choice)));
    return sentences;
}

Result<FinishedJob> PrintController::finish()
{
    if (const Result<> checked = refuseSavedJobs(m_job.documents()); !checked)
        return checked.fault();
    const SettingState before = settingState(m_job);
    if (HostSession *session = m_job.session()) {
        const Result<> agreed =
            m_unsaved.saveAgain(*session).andThen([&] { return askPanels(*session); });
        if (!agreed)
            return agreed.fault();
    }
    const JobOptions options = m_job.wholeOptions();
    if (!options.faults.isEmpty())
        return Fault{FaultKind::Vetoed, options.faults.constFirst()};
    const SettingState after = settingState(m_job);
    FinishedJob finished{m_job.request(options.options),
                         replacedBySaving(m_job, before, after) + doubtsOf(m_job, after)};
    finished.doubts.removeDuplicates();
    return finished;
}

QList<JobRequest> PrintController::oneForEach()
{
    const Documents all = m_job.documents();
    QList<JobRequest> jobs;
    for (const Document &document : all) {
        m_job.setDocuments({document});
        jobs += m_job.request(m_job.wholeOptions().options);
    }
    m_job.setDocuments(all);
    return jobs;
}

std::shared_ptr<JobProgress> PrintController::send(const JobRequest &request, Then<JobReceipt> then)
{
    const auto progress = std::make_shared<JobProgress>();
    begin<Result<JobReceipt>>(
        m_call, kServerTimeout,
        [request, progress](CallGuard &guard) {
            const PasswordScope scope(PasswordPurpose::Printing, request.queue);
            return submitJob(request, guard, progress);
        },
        std::move(then), [request, progress] { return givenUpReceipt(request, *progress); });
    return progress;
}

void PrintController::rehearse(const JobRequest &request, Then<std::monostate> then)
{
    begin<Result<>>(
        m_call, kServerTimeout,
        [request](CallGuard &guard) {
            const PasswordScope scope(PasswordPurpose::Printing, request.queue);
            return rehearseJob(request, guard);
        },
        std::move(then),
        [request] { return Result<>(notPrinted(silentServer(request.server), request.queue)); });
}

void PrintController::endTrial(const JobPlace &job, TrialVerdict verdict, Then<std::monostate> then)
{
    begin<Result<>>(
        m_call, kServerTimeout,
        [job, verdict](CallGuard &guard) { return ::endTrial(verdict, job, guard); },
        std::move(then),
        [job, verdict] { return Result<>(endlessTrial(verdict, job, silentServer(job.server))); });
}

std::shared_ptr<JobProgress> PrintController::write(const QString &path, const JobRequest &request,
                                                    const OutputTerms &terms,
                                                    Then<QStringList> then)
{
    const auto progress = std::make_shared<JobProgress>();
    begin<Result<QStringList>>(
        m_call, kFileTimeout,
        [path, request, terms, progress](CallGuard &guard) {
            return writeJobFile(path, request, terms, guard, *progress).andThen([&] {
                return Result<QStringList>(notesOnSaving(path, request.options));
            });
        },
        std::move(then));
    return progress;
}

OutputTerms PrintController::outputTerms() const
{
    OutputTerms terms;
    for (const QString &input : m_wishes.files + QStringList{m_wishes.ppd, m_wishes.record})
        terms.addInput(input);
    terms.mayReplace = m_wishes.force;
    return terms;
}

void PrintController::cancel()
{
    for (const QPointer<BackgroundCall> &call : {m_call, m_reading, m_asking})
        if (call)
            call->cancel();
}

void PrintController::stopReading()
{
    delete m_reading;
}
