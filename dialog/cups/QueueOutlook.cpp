#include "dialog/cups/QueueOutlook.h"

#include "dialog/cups/JobTemplate.h"
#include "dialog/cups/OptionAttribute.h"
#include "dialog/cups/ServerRequests.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDefault = "-default"_L1;

bool hasValue(ipp_attribute_t *attribute)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    return tag != IPP_TAG_NOVALUE && tag != IPP_TAG_UNKNOWN && tag != IPP_TAG_BEGIN_COLLECTION;
}

/// What the server would not keep of the job.
QList<JobOption> unsupported(ipp_t *answer)
{
    QList<JobOption> options;
    for (ipp_attribute_t *one = ippFirstAttribute(answer); one; one = ippNextAttribute(answer))
        if (ippGetGroupTag(one) == IPP_TAG_UNSUPPORTED_GROUP && ippGetName(one))
            options += JobOption{QString::fromUtf8(ippGetName(one)),
                                 hasValue(one) ? attributeText(one) : QString()};
    return options;
}

/// Whether there was an answer in IPP, of whatever status. A server that closes or is silent would
/// do no better with the job.
bool wasAnswered(const ServerConnection &connection)
{
    return connection.lastEnd().kind == ExchangeEnd::Kind::Answered;
}

// cupsd lists what it has derived from the PPD under the same name, behind what the queue was given
// as its own. It adds the derived ones of these to no job.
QList<JobOption> queueDefaults(ipp_t *printer)
{
    QList<JobOption> defaults;
    QList<JobOption> papers;
    for (ipp_attribute_t *one = ippFirstAttribute(printer); one; one = ippNextAttribute(printer)) {
        const QString name = QString::fromUtf8(ippGetName(one));
        if (ippGetGroupTag(one) != IPP_TAG_PRINTER || !name.endsWith(kDefault) || !hasValue(one))
            continue;
        const JobOption value{name.chopped(kDefault.size()), attributeText(one)};
        (value.name == "media"_L1 ? papers : defaults) += value;
    }
    if (papers.size() > 1)
        defaults += papers.constFirst();
    return defaults;
}

/// Of these only that somebody has to say them: a ticket of the network's own is nothing to type.
QStringList authInfoOf(ipp_t *printer)
{
    ipp_attribute_t *required = ippFindAttribute(printer, "auth-info-required", IPP_TAG_KEYWORD);
    QStringList names;
    for (int index = 0; index < ippGetCount(required); ++index)
        names += QString::fromUtf8(ippGetString(required, index, nullptr));
    names.removeAll(u"none"_s);
    return names.contains(u"negotiate"_s) ? QStringList() : names;
}

} // namespace

QueueTerms termsOf(ipp_t *printer)
{
    ipp_attribute_t *name = ippFindAttribute(printer, "printer-name", IPP_TAG_NAME);
    return {QString::fromUtf8(ippGetString(name, 0, nullptr)), queueDefaults(printer),
            authInfoOf(printer)};
}

const QList<QByteArray> &termsAttributes()
{
    static const QList<QByteArray> names{"printer-name", "printer-defaults", "auth-info-required"};
    return names;
}

Result<QueueTerms> askTerms(ServerConnection &connection, const QString &queue)
{
    IppHandle asked = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(asked.get(), termsAttributes());
    const IppHandle printer = connection.request(std::move(asked), queueResource(queue));
    if (!wasAnswered(connection))
        return connection.lastFault(queue);
    return connection.succeeded() ? termsOf(printer.get()) : QueueTerms();
}

Result<QueueInfluence> lookAhead(ServerConnection &connection, const JobRequest &job,
                                 const QueueTerms &terms)
{
    QueueInfluence influence = influenceOf(terms.defaults, job.options);
    JobRequest whole = job;
    whole.options += influence.settled;
    const IppHandle verdict =
        connection.request(jobTemplate(IPP_OP_VALIDATE_JOB, whole), queueResource(job.queue));
    if (!wasAnswered(connection))
        return connection.lastFault(job.queue);
    if (connection.succeeded())
        influence.unsettled += unsupported(verdict.get());
    return influence;
}
