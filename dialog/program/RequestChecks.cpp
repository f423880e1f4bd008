#include "dialog/program/RequestChecks.h"

#include "dialog/job/PageRanges.h"
#include "dialog/printing/SettingRequests.h"

#include <QtCore/QCoreApplication>

namespace {

const auto kCovers = QStringLiteral("job-sheets");

Result<> checkRanges(const QString &ranges, const std::optional<int> &pages)
{
    const std::optional<int> beyond =
        pages && !ranges.isEmpty() ? pageBeyond(ranges, *pages) : std::nullopt;
    if (!beyond)
        return {};
    return Fault{FaultKind::Request,
                 QCoreApplication::translate("RequestChecks",
                                             "Page %1 is beyond the document's last page, %2.")
                     .arg(QString::number(*beyond), QString::number(*pages))};
}

} // namespace

Result<> checkPages(const QString &ranges, const PageCount &count)
{
    return checkRanges(ranges, count.fewest);
}

Result<> checkPagesOfEach(const QString &ranges, const PageCount &count, const Documents &documents)
{
    for (std::size_t index = 0; index < documents.size(); ++index) {
        const Result<> checked =
            checkRanges(ranges, count.each.value(static_cast<qsizetype>(index)));
        if (!checked)
            return Fault{checked.fault().kind,
                         QStringLiteral("%1: %2").arg(documents[index].path(), checked.sentence())};
    }
    return {};
}

QStringList coversOf(const JobRequest &job)
{
    QStringList covers;
    for (const JobOption &option : job.options)
        if (option.name == kCovers)
            covers = option.value.split(u',', Qt::SkipEmptyParts);
    return covers;
}

Result<> checkCovers(const JobRequest &job, const QStringList &there)
{
    for (const QString &cover : coversOf(job))
        if (!there.isEmpty() && !there.contains(cover))
            return noSuchValue({kCovers, cover}, there);
    return {};
}
