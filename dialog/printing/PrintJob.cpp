#include "dialog/printing/PrintJob.h"

#include "dialog/job/DocumentFile.h"
#include "dialog/job/DocumentKind.h"
#include "dialog/job/Papers.h"
#include "dialog/job/StandardAttributes.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMTicketKeys.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDuplex = "Duplex"_L1;

} // namespace

PrintJob::PrintJob(const Documents &documents)
{
    setDocuments(documents);
}

void PrintJob::setDocuments(const Documents &documents)
{
    m_documents = documents;
    m_title = jobTitle(documents);
    m_kinds = kindsOf(documents);
}

void PrintJob::setPrinter(const PrinterSource &source, OpenedPrinter printer)
{
    m_source = source;
    closePrinter();
    if (printer.session)
        m_printer = std::move(printer.session);
    else
        m_printer = PMPageFormat{{}, printer.saved.orientation};
    m_saved = printer.saved.others;
    m_chosen.clear();
    if (session())
        for (const PPDMark &mark : changedMarks(ppd(), session()->defaultMarks()))
            noteChoice(mark);
    m_settled = printer.saved.settled;
    if (m_settings == m_savedSettings)
        m_settings = printer.saved.settings;
    m_savedSettings = printer.saved.settings;
}

void PrintJob::setSettled(const SettledState &state)
{
    m_settings = state.settings;
    m_ownTitle = state.ownTitle;
    m_chosen = state.chosen;
    setOrientation(state.orientation);
}

void PrintJob::closePrinter()
{
    // Whoever is told of it finds no session any more.
    const auto closing = std::exchange(m_printer, PMPageFormat{{}, orientation()});
}

HostSession *PrintJob::session() const
{
    const auto *session = std::get_if<std::unique_ptr<HostSession>>(&m_printer);
    return session ? session->get() : nullptr;
}

QString PrintJob::printerKey() const
{
    return m_source.queue.queue.isEmpty() ? m_source.ppdPath
                                          : m_source.server + u'/' + m_source.queue.queue;
}

const PMPageFormat &PrintJob::format() const
{
    return session() ? session()->pageFormat() : std::get<PMPageFormat>(m_printer);
}

PMOrientation PrintJob::orientation() const
{
    return format().orientation;
}

void PrintJob::setOrientation(PMOrientation orientation)
{
    (session() ? session()->pageFormat() : std::get<PMPageFormat>(m_printer)).orientation =
        orientation;
}

std::optional<PMPaper> PrintJob::paper() const
{
    const std::optional<PMPaper> &paper = format().paper;
    // Scaling a page of no known paper has left one without a name.
    return paper && !paper->name.isEmpty() ? paper : std::nullopt;
}

void PrintJob::setPaper(const PMPaper &paper)
{
    session()->setPaper(paper, mappedPaper().isEmpty() ? std::nullopt : std::optional(QString()));
}

QString PrintJob::mappedPaper() const
{
    return session() ? session()->ticket().values().value(kPMMappedPaperKey).toString() : QString();
}

std::optional<PMPaper> PrintJob::sheet() const
{
    const std::optional<PMPaper> mapped = paperOfChoice(ppd(), mappedPaper());
    return mapped ? mapped : paper();
}

std::optional<PMPaper> PrintJob::documentPage() const
{
    const std::optional<PMPaper> page = paper();
    const std::optional<PMPaper> sheet = this->sheet();
    return page && sheet && page->name != sheet->name ? page : std::nullopt;
}

ScalingCase PrintJob::scalingCase() const
{
    const std::optional<PMPaper> sheet = this->sheet();
    return {!sheet || hasMargins(ppd(), *sheet), m_kinds.contains(DocumentKind::Picture)};
}

bool PrintJob::offersColorMatching() const
{
    return ppd() && ppdFindAttr(ppd(), kPMCustomColorMatchingAttribute, nullptr);
}

PrintJob::ColorMatching PrintJob::colorMatching() const
{
    const QVariant value =
        session() ? session()->ticket().values().value(kPMColorMatchingModeKey) : QVariant();
    return value.toString() == kPMApplicationColorMatching ? ColorMatching::Application
                                                           : ColorMatching::Printer;
}

void PrintJob::setColorMatching(ColorMatching matching)
{
    session()->writeTicket(kPMColorMatchingModeKey, matching == ColorMatching::Printer
                                                        ? QString(kPMVendorColorMatching)
                                                        : QString(kPMApplicationColorMatching));
    for (const HostPanel &panel : session()->panels())
        session()->restore(panel);
}

bool PrintJob::mark(const QString &keyword, const QString &choice)
{
    if (!session() || !session()->markElsewhere(keyword, choice))
        return false;
    // Panels hear of their own keywords only; of the others they read when they restore.
    if (session()->watchedKeywords().contains(keyword, Qt::CaseInsensitive))
        for (const HostPanel &panel : session()->panels())
            session()->restore(panel);
    return true;
}

QStringList PrintJob::ownKeywords() const
{
    QStringList keywords;
    if (!session())
        return keywords;
    for (const QString &keyword : QStringList(kDuplex) + session()->watchedKeywords())
        if (isChoice(ppd(), keyword) && !keywords.contains(keyword))
            keywords += keyword;
    return keywords;
}

QList<AttributeRule> PrintJob::attributeRules() const
{
    return attributeRulesFor(ppd(),
                             session() ? session()->attributeRules() : QList<AttributeRule>());
}

// A queue has defaults of its own, which a file that was named instead knows nothing of.
JobOptions PrintJob::options() const
{
    return optionsBeside(session() && m_source.ppdPath.isNull() ? session()->defaultMarks()
                                                                : QList<PPDMark>());
}

JobOptions PrintJob::wholeOptions() const
{
    return optionsBeside({});
}

/// The marks of these defaults are not said.
JobOptions PrintJob::optionsBeside(const QList<PPDMark> &defaults) const
{
    JobValues values;
    values.settings = m_settings;
    values.saved = m_saved;
    values.settled = m_settled;
    values.format = format();
    values.havePages = !m_kinds.empty() && m_kinds.count(DocumentKind::Pages) == m_kinds.size();
    if (const HostSession *open = session()) {
        values.ppd = open->ppd();
        values.defaultMarks = defaults;
        values.ticket = open->ticket();
        values.attributeRules = attributeRules();
        for (const QString &key : open->ticket().values().keys())
            if (const QString keyword = open->keywordOfTicketKey(key); !keyword.isNull())
                values.inTicket += keyword;
    }
    return jobOptions(values);
}

JobRequest PrintJob::request(const QList<JobOption> &options) const
{
    JobRequest request;
    request.server = m_source.server;
    request.queue = m_source.queue.queue;
    request.title = title();
    request.options = options;
    request.documents = m_documents;
    return request;
}
