#include "dialog/program/RequestChecks.h"

#include "dialog/job/JobOptions.h"
#include "dialog/job/PageRanges.h"
#include "dialog/job/PrintedSides.h"
#include "dialog/printing/SettingRequests.h"

#include <QtCore/QCoreApplication>

namespace {

const auto kCovers = QStringLiteral("job-sheets");

QString beyondSentence(const JobLayout &layout)
{
    return hasSeveralPagesOnASide(layout)
               ? QCoreApplication::translate("RequestChecks",
                                             "%1 is beyond the last side that is printed, %2.")
               : QCoreApplication::translate("RequestChecks",
                                             "Page %1 is beyond the document's last page, %2.");
}

Result<> checkRanges(const HostSettings &settings, const std::optional<int> &pages)
{
    if (!pages)
        return {};
    const int last = printedSides(settings.layout, *pages);
    const std::optional<int> beyond = pageBeyond(settings.pageRanges, last);
    if (!beyond)
        return {};
    return Fault{
        FaultKind::Request,
        beyondSentence(settings.layout).arg(QString::number(*beyond), QString::number(last))};
}

} // namespace

Result<> checkPages(const HostSettings &settings, const PageCount &count)
{
    return checkRanges(settings, count.fewest);
}

Result<> checkPagesOfEach(const HostSettings &settings, const PageCount &count,
                          const Documents &documents)
{
    for (std::size_t index = 0; index < documents.size(); ++index) {
        const Result<> checked =
            checkRanges(settings, count.each.value(static_cast<qsizetype>(index)));
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
