#include "dialog/printing/PrintJob.h"

#include "dialog/job/DocumentFile.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMTicketKeys.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDuplex = "Duplex"_L1;

} // namespace

PrintJob::PrintJob(Documents documents)
    : m_documents(std::move(documents)), m_title(jobTitle(m_documents))
{}

void PrintJob::setDocuments(const Documents &documents)
{
    m_documents = documents;
    m_title = jobTitle(documents);
}

void PrintJob::setPrinter(const PrinterSource &source, OpenedPrinter printer)
{
    m_source = source;
    m_session = std::move(printer.session);
    m_saved = printer.saved.others;
    m_formatWithoutSession.orientation = printer.saved.orientation;
    if (m_settings == m_savedSettings)
        m_settings = printer.saved.settings;
    m_savedSettings = printer.saved.settings;
}

void PrintJob::closePrinter()
{
    m_session.reset();
}

PMOrientation PrintJob::orientation() const
{
    return m_session ? std::as_const(*m_session).pageFormat().orientation
                     : m_formatWithoutSession.orientation;
}

void PrintJob::setOrientation(PMOrientation orientation)
{
    (m_session ? m_session->pageFormat() : m_formatWithoutSession).orientation = orientation;
}

std::optional<PMPaper> PrintJob::paper() const
{
    if (!m_session)
        return std::nullopt;
    const std::optional<PMPaper> &paper = std::as_const(*m_session).pageFormat().paper;
    // Scaling a page of no known paper has left one without a name.
    return paper && !paper->name.isEmpty() ? paper : std::nullopt;
}

void PrintJob::setPaper(const PMPaper &paper)
{
    m_session->setPaper(paper);
}

QString PrintJob::mappedPaper() const
{
    return m_session ? m_session->ticket().values().value(kPMMappedPaperKey).toString() : QString();
}

void PrintJob::setMappedPaper(const QString &paper)
{
    m_session->setPaper(this->paper().value_or(PMPaper()), paper);
}

bool PrintJob::offersColorMatching() const
{
    return ppd() && ppdFindAttr(ppd(), kPMCustomColorMatchingAttribute, nullptr);
}

PrintJob::ColorMatching PrintJob::colorMatching() const
{
    const QVariant value =
        m_session ? m_session->ticket().values().value(kPMColorMatchingModeKey) : QVariant();
    return value.toString() == kPMApplicationColorMatching ? ColorMatching::Application
                                                           : ColorMatching::Printer;
}

void PrintJob::setColorMatching(ColorMatching matching)
{
    m_session->writeTicket(kPMColorMatchingModeKey, matching == ColorMatching::Printer
                                                        ? QString(kPMVendorColorMatching)
                                                        : QString(kPMApplicationColorMatching));
    for (const HostPanel &panel : m_session->panels())
        m_session->restore(panel);
}

bool PrintJob::mark(const QString &keyword, const QString &choice)
{
    if (!m_session || !m_session->markElsewhere(keyword, choice))
        return false;
    // Panels hear of their own keywords only; of the others they read when they restore.
    if (m_session->watchedKeywords().contains(keyword, Qt::CaseInsensitive))
        for (const HostPanel &panel : m_session->panels())
            m_session->restore(panel);
    return true;
}

QStringList PrintJob::ownKeywords() const
{
    QStringList keywords;
    if (!m_session)
        return keywords;
    for (const QString &keyword : QStringList(kDuplex) + m_session->watchedKeywords())
        if (isChoice(ppd(), keyword) && !keywords.contains(keyword))
            keywords += keyword;
    return keywords;
}

JobOptions PrintJob::options() const
{
    JobValues values;
    values.settings = m_settings;
    values.saved = m_saved;
    values.format = m_formatWithoutSession;
    if (m_session) {
        values.ppd = m_session->ppd();
        values.defaultMarks = m_session->defaultMarks();
        values.format = m_session->pageFormat();
        values.ticket = m_session->ticket();
    }
    return jobOptions(values);
}

JobRequest PrintJob::request(const QList<JobOption> &options) const
{
    JobRequest request;
    request.server = m_source.server;
    request.queue = m_source.queue.queue;
    request.title = m_title;
    request.options = options;
    request.documents = m_documents;
    return request;
}
