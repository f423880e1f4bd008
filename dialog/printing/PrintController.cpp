#include "dialog/printing/PrintController.h"

#include "dialog/cups/CoverPages.h"
#include "dialog/cups/JobSettlement.h"
#include "dialog/cups/Passwords.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"
#include "dialog/host/HostSession.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/job/JobFileWriter.h"
#include "dialog/job/PipeDocuments.h"
#include "dialog/printing/JobDoubts.h"
#include "dialog/printing/LastPrinter.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/SavedJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/printing/StandardSettings.h"
#include "dialog/printing/YieldedSettings.h"

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

/// The one that the job has, else those that a person could pick now.
QList<RequestedChoice> choicesLeft(const PrintJob &job, const QList<RequestedChoice> &choices)
{
    QList<RequestedChoice> left;
    for (const RequestedChoice &choice : choices) {
        if (hasSetting(job, choice))
            return {choice};
        if (isOfferedInPanels(*job.session(), choice.keyword, choice.choice))
            left += choice;
    }
    return left;
}

} // namespace

PrintController::PrintController(PrintWishes wishes, QObject *parent)
    : QObject(parent), m_wishes(std::move(wishes)), m_opening(m_job)
{
    m_job.setTitle(m_wishes.title);
    addSessionHook([this](HostSession &session) {
        session.addObserver(&m_unsaved);
        return Result<>();
    });
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
    m_reading.begin<Result<Documents>>(
        kFileTimeout,
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
    m_named.reset();
    if (const Result<> known = checkInstance(source.queue); !known) {
        m_job.setPrinter(source, {});
        QTimer::singleShot(0, this, [then = std::move(then), known] { then(known.fault()); });
        return;
    }
    m_call.begin<FetchedPrinter>(
        kServerTimeout,
        [source](CallGuard &guard) {
            const PasswordScope scope(PasswordPurpose::Settings, source.queue.queue);
            return fetchPrinter(source, guard);
        },
        [this, source, then = std::move(then)](FetchedPrinter fetched) {
            then(m_opening.take(source, fetched, m_wishes.plugIn));
        },
        [source] { return givenUpPrinter(source); });
}

void PrintController::listPrinters(Asking asking, Then<QList<Destination>> then)
{
    using List = Result<QList<Destination>>;
    m_listing.begin<List>(
        kServerTimeout,
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
    m_covers.begin<Result<QStringList>>(
        kServerTimeout,
        [source](CallGuard &guard) { return coverPages(source.server, source.queue.queue, guard); },
        std::move(then), [source] { return Result<QStringList>(silentServer(source.server)); });
}

void PrintController::askCondition(Then<PrinterCondition> then)
{
    const PrinterSource source = m_job.source();
    m_asking.begin<Result<PrinterCondition>>(
        kServerTimeout,
        [source](CallGuard &guard) {
            return ::askCondition(source.server, source.queue.queue, guard);
        },
        std::move(then),
        [source] { return Result<PrinterCondition>(silentServer(source.server)); });
}

void PrintController::lookForExchange(Then<bool> then)
{
    const std::optional<QueuePPD> shown = shownPPD();
    if (!shown)
        return;
    const PrinterSource source = m_job.source();
    m_comparing.begin<Result<bool>>(
        kServerTimeout,
        [source, shown](CallGuard &guard) {
            return isExchanged(source.server, source.queue.queue, *shown, guard);
        },
        std::move(then), [source] { return Result<bool>(silentServer(source.server)); });
}

NamedWishes PrintController::nameWishes(const ChoiceNarrowing &narrowed) const
{
    QList<RequestedChoice> wanted = m_wishes.choices;
    if (m_wishes.mail)
        wanted += RequestedChoice{QStringLiteral("notify-recipient-uri"), ownAddress()};
    if (!m_wishes.paper.isNull())
        wanted += RequestedChoice{QStringLiteral("PageSize"), m_wishes.paper};
    return inPrintersNames(m_job.ppd(), m_job.attributeRules(), wanted, narrowed);
}

NamedWishes PrintController::namedWishes() const
{
    return m_named ? *m_named : nameWishes({});
}

Result<>
PrintController::makeRequestedSettings(const std::function<void(const RequestedChoice &)> &madeOne)
{
    m_named = nameWishes({});
    const Result<> made = makeSettings(m_job, m_named->wanted, madeOne);
    if (!m_named->state && m_job.session())
        return makeOffered(made, madeOne);
    return m_named->state ? made : m_named->state;
}

/// What stands for several choices may stand for one, now that the other wishes are made: a quality
/// by the medium that it goes with.
Result<> PrintController::makeOffered(const Result<> &made,
                                      const std::function<void(const RequestedChoice &)> &madeOne)
{
    prepareControls(*m_job.session());
    const NamedWishes named = nameWishes(
        [this](const QList<RequestedChoice> &choices) { return choicesLeft(m_job, choices); });
    QList<RequestedChoice> added = named.wanted;
    added.removeIf([&](const RequestedChoice &one) { return m_named->wanted.contains(one); });
    m_named = named;
    if (added.isEmpty())
        return named.state ? made : named.state;
    const Result<> madeMore = makeSettings(m_job, added, madeOne);
    const bool areAllThere = made && madeMore && ::lostSettings(m_job, named.wanted).isEmpty();
    const Result<> all = areAllThere ? made : makeSettings(m_job, named.wanted, madeOne);
    return named.state ? all : named.state;
}

QList<RequestedChoice> PrintController::lostSettings() const
{
    return ::lostSettings(m_job, namedWishes().wanted);
}

Result<> PrintController::makeAgainWithout(const QList<RequestedChoice> &lost)
{
    const std::shared_ptr<const PrinterOrigin> opening = origin();
    if (Result<> opened = reopen(opening); !opened)
        return opened;
    QList<RequestedChoice> wanted = namedWishes().wanted;
    wanted.removeIf([&](const RequestedChoice &one) {
        const Result<RequestedChoice> spelled = knownSetting(m_job, one);
        return spelled && lost.contains(*spelled);
    });
    return makeSettings(m_job, wanted);
}

QStringList PrintController::yieldedSettings()
{
    return origin() && m_job.session()
               ? ::yieldedSettings(m_job, origin()->starting, namedWishes().wanted)
               : QStringList();
}

/// The queue's PPD that the settings are of; none where they are of a file that somebody has named.
std::optional<QueuePPD> PrintController::shownPPD() const
{
    const PrinterSource &source = m_job.source();
    if (source.queue.queue.isEmpty() || !source.ppdPath.isNull())
        return std::nullopt;
    return origin() ? origin()->kept : QueuePPD();
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
    finished.request.ppd = shownPPD();
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
        jobs.last().ppd = shownPPD();
    }
    m_job.setDocuments(all);
    return jobs;
}

std::shared_ptr<JobProgress> PrintController::send(const JobRequest &request, Then<JobReceipt> then)
{
    auto progress = std::make_shared<JobProgress>();
    m_call.begin<Result<JobReceipt>>(
        kServerTimeout,
        [request, progress](CallGuard &guard) {
            const PasswordScope scope(PasswordPurpose::Printing, request.queue);
            return submitJob(request, guard, progress);
        },
        std::move(then), [request, progress] { return givenUpReceipt(request, *progress); });
    return progress;
}

void PrintController::rehearse(const JobRequest &request, Then<std::monostate> then)
{
    m_call.begin<Result<>>(
        kServerTimeout,
        [request](CallGuard &guard) {
            const PasswordScope scope(PasswordPurpose::Printing, request.queue);
            return rehearseJob(request, guard);
        },
        std::move(then),
        [request] { return Result<>(notPrinted(silentServer(request.server), request.queue)); });
}

void PrintController::endTrial(const JobPlace &job, TrialVerdict verdict, Then<std::monostate> then)
{
    m_call.begin<Result<>>(
        kServerTimeout,
        [job, verdict](CallGuard &guard) { return ::endTrial(verdict, job, guard); },
        std::move(then),
        [job, verdict] { return Result<>(endlessTrial(verdict, job, silentServer(job.server))); });
}

std::shared_ptr<JobProgress> PrintController::write(const QString &path, const JobRequest &request,
                                                    const OutputTerms &terms,
                                                    Then<QStringList> then)
{
    auto progress = std::make_shared<JobProgress>();
    m_call.begin<Result<QStringList>>(
        kFileTimeout,
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
    for (LatestCall *call : {&m_call, &m_reading, &m_asking, &m_comparing})
        call->cancel();
}
