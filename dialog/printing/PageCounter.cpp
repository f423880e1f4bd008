#include "dialog/printing/PageCounter.h"

#include "dialog/job/JobOptions.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTimer>

#include <algorithm>
#include <chrono>

namespace {

constexpr std::chrono::seconds kLongestCount{15}; // by the clock
constexpr auto kPDFBeginning = "%PDF-";
constexpr qint64 kBeginningLength = 1024; // a PDF may have other bytes before its own

QString counterPath()
{
    return QDir(QCoreApplication::applicationDirPath())
        .filePath(QLatin1String(VELKARO_PRIVATE_FROM_BIN "/velkaro-count-pages"));
}

bool isPDF(const Document &document)
{
    QByteArray beginning(kBeginningLength, '\0');
    const qint64 got = document.read(0, beginning.data(), beginning.size());
    return got > 0 && beginning.left(got).contains(kPDFBeginning);
}

} // namespace

int printedPages(const HostSettings &settings, const PageCount &documents)
{
    const JobLayout &layout = settings.layout;
    const bool isPlain = settings.pageRanges.isEmpty() && layout.pagesPerSheet.isEmpty() &&
                         layout.pageSet.isEmpty() && layout.booklet.isEmpty();
    return isPlain ? documents.all.value_or(0) * settings.copies : 0;
}

PageCounter::PageCounter(QObject *parent) : QObject(parent) {}

PageCounter::~PageCounter()
{
    m_then = nullptr;
    delete m_process;
}

void PageCounter::count(const Documents &documents, Then then)
{
    delete m_process;
    m_documents = documents;
    m_then = std::move(then);
    m_sofar = {};
    if (!documents.empty())
        m_sofar.all = 0;
    QTimer::singleShot(0, this, &PageCounter::countNext);
}

void PageCounter::countNext()
{
    if (m_process) // a count that was begun meanwhile
        return;
    if (m_documents.empty()) {
        if (const Then then = std::exchange(m_then, nullptr))
            then(m_sofar);
        return;
    }
    const Document &next = m_documents.front();
    if (!next.isWholeFile() || !isPDF(next)) {
        take(std::nullopt);
        return;
    }
    m_process = new QProcess(this);
    m_process->setStandardInputFile(QStringLiteral("/proc/self/fd/%1").arg(next.descriptor()));
    m_process->setStandardErrorFile(QProcess::nullDevice());
    const auto end = [this, process = m_process.data()] {
        if (process != m_process)
            return;
        bool isNumber = false;
        const int pages = process->readAllStandardOutput().trimmed().toInt(&isNumber);
        m_process = nullptr;
        process->deleteLater();
        take(isNumber ? std::optional(pages) : std::nullopt);
    };
    connect(m_process, &QProcess::finished, this, end);
    connect(m_process, &QProcess::errorOccurred, this, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end();
    });
    QTimer::singleShot(kLongestCount, m_process, &QProcess::kill);
    m_process->start(counterPath(), {});
}

void PageCounter::take(std::optional<int> pages)
{
    m_sofar.all = pages && m_sofar.all ? std::optional(*m_sofar.all + *pages) : std::nullopt;
    if (pages)
        m_sofar.fewest = std::min(*pages, m_sofar.fewest.value_or(*pages));
    m_sofar.each += pages;
    m_documents.erase(m_documents.begin());
    countNext();
}
