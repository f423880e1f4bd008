#pragma once

#include "dialog/job/Document.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <functional>
#include <optional>

class QProcess;

/// How many pages documents have, as far as that can be known: of PDFs alone.
struct PageCount
{
    std::optional<int> all;    ///< of all documents together; none when one of them does not tell
    std::optional<int> fewest; ///< of the one that has the fewest; none when none tells
    QList<std::optional<int>> each =
        {}; ///< of each, in their order; none of one that does not tell

    bool operator==(const PageCount &) const = default;
};

struct HostSettings;

/// How many pages the job's printer prints of so many, all copies counted; 0 where that cannot be
/// known: where pages are chosen, or several come on a sheet.
int printedPages(const HostSettings &settings, const PageCount &documents);

/// Counts the pages of documents in a process beside this one: a PDF may come from anybody. One
/// that takes too much memory or time is one whose pages are not known.
class PageCounter : public QObject
{
public:
    using Then = std::function<void(PageCount)>;

    explicit PageCounter(QObject *parent = nullptr);
    ~PageCounter() override;

    /// Tells the count to `then` from the event loop, in the place of any count that is going on.
    /// Pipes among the documents must have been read.
    void count(const Documents &documents, Then then);

private:
    void countNext();
    void take(std::optional<int> pages);

    Documents m_documents; ///< those that are still to be counted, the next one first
    PageCount m_sofar;
    Then m_then;
    QPointer<QProcess> m_process;
};
