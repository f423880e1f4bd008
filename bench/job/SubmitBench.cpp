// From Print to an accepted job: the dialog's way (a thread of its own, the job read back), against
// creating, sending and finishing the same job through libcups in this thread. Both against one
// private cupsd, in turn.
#include "bench/support/ProcessCost.h"
#include "bench/support/Timing.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/printing/JobSeries.h"
#include "dialog/printing/PrintController.h"
#include "tests/built/BuiltFiles.h"
#include "tests/printserver/PrintServer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>

#include <cups/cups.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRuns = 40;
constexpr double kReach = 1.5;
constexpr int kSeries = 50;
constexpr int kSeriesRuns = 5;
constexpr double kReachOfSeries = 1.3;

http_t *connectByLibcups()
{
    return httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, 5000,
                        nullptr);
}

bool submitByLibcups(http_t *http, const JobRequest &job)
{
    cups_option_t *options = nullptr;
    int count = 0;
    for (const JobOption &option : job.options)
        count = cupsAddOption(option.name.toUtf8().constData(), option.value.toUtf8().constData(),
                              count, &options);
    const QByteArray queue = job.queue.toUtf8();
    const int id = cupsCreateJob(http, queue.constData(), "bench", count, options);
    bool sent = id > 0 && cupsStartDocument(http, queue.constData(), id, "bench",
                                            "application/octet-stream", 1) == HTTP_STATUS_CONTINUE;
    const Document &document = job.documents.front();
    QByteArray bytes(document.size(), Qt::Uninitialized);
    sent = sent && document.read(0, bytes.data(), bytes.size()) == bytes.size();
    sent = sent &&
           cupsWriteRequestData(http, bytes.constData(), static_cast<std::size_t>(bytes.size())) ==
               HTTP_STATUS_CONTINUE;
    sent = sent && cupsFinishDocument(http, queue.constData()) == IPP_STATUS_OK;
    cupsFreeOptions(count, options);
    return sent;
}

bool submitByLibcups(const JobRequest &job)
{
    http_t *http = connectByLibcups();
    const bool sent = submitByLibcups(http, job);
    httpClose(http);
    return sent;
}

bool submitSeriesByLibcups(const JobRequest &job)
{
    http_t *http = connectByLibcups();
    bool sent = true;
    for (int count = 0; count < kSeries; ++count)
        sent = submitByLibcups(http, job) && sent;
    httpClose(http);
    return sent;
}

bool submitSeries(const JobRequest &job)
{
    QEventLoop loop;
    bool areAccepted = true;
    JobSeries series(QList<JobRequest>(kSeries, job),
                     {[&](qsizetype, const Result<JobReceipt> &receipt) {
                          areAccepted = receipt.isGood() && areAccepted;
                      },
                      [&] { loop.quit(); }});
    series.start();
    loop.exec();
    return areAccepted;
}

bool submitByDialog(const JobRequest &job)
{
    PrintController controller({});
    QEventLoop loop;
    bool isAccepted = false;
    controller.send(job, [&](const Result<JobReceipt> &receipt) {
        isAccepted = receipt.isGood();
        loop.quit();
    });
    loop.exec();
    return isAccepted;
}

double microseconds(bool (*submit)(const JobRequest &), const JobRequest &job, bool &good)
{
    QElapsedTimer clock;
    clock.start();
    good = submit(job) && good;
    return static_cast<double>(clock.nsecsElapsed()) / 1e3;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    PrintServer server;
    if (!server.fault().isNull() || !server.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)) ||
        !server.command(u"cupsdisable"_s, {u"photo"_s}))
        return 1;
    cupsSetServer(server.address().toUtf8().constData());
    JobRequest job;
    job.server = server.address();
    job.queue = u"photo"_s;
    job.title = u"bench"_s;
    job.options = {{u"VKMediaType"_s, u"Glossy"_s},
                   {u"VKResolution"_s, u"Photo"_s},
                   {u"PageSize"_s, u"A4.Fullbleed"_s},
                   {u"com.velkaro.print.PrintSettings.T2T_Red"_s, u"3"_s}};
    job.documents = *openDocuments({samplePPD(u"velkaro-px-t900"_s)}); // any 50 kB of text
    bool good = true;
    std::vector<double> ours;
    std::vector<double> peers;
    for (int run = 0; run < kRuns; ++run) {
        peers.push_back(microseconds(submitByLibcups, job, good));
        ours.push_back(microseconds(submitByDialog, job, good));
    }
    printHead("From Print to the accepted job", "dialog", "libcups");
    printRatio("a job of 50 kB", median(ours), median(peers), kReach);
    ours.clear();
    peers.clear();
    for (int run = 0; run < kSeriesRuns; ++run) {
        peers.push_back(microseconds(submitSeriesByLibcups, job, good));
        ours.push_back(microseconds(submitSeries, job, good));
    }
    printRatio("50 of them over one connection", median(ours), median(peers), kReachOfSeries);
    return good ? 0 : 1;
}
