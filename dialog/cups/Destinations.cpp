#include "dialog/cups/Destinations.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array kWanted{
    "printer-name",          "printer-info",          "printer-location",         "printer-state",
    "printer-state-message", "printer-state-reasons", "printer-is-accepting-jobs"};

QString text(ipp_attribute_t *attribute)
{
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

QStringList reasonsOf(ipp_attribute_t *attribute)
{
    QStringList reasons;
    for (int index = 0; index < ippGetCount(attribute); ++index) {
        const QString one =
            shownServerText(QString::fromUtf8(ippGetString(attribute, index, nullptr)));
        if (!one.isEmpty() && one != QLatin1String("none"))
            reasons += one;
    }
    return reasons;
}

void takeState(ipp_attribute_t *attribute, Destination &destination)
{
    const int state = ippGetInteger(attribute, 0);
    destination.isStopped = state == IPP_PSTATE_STOPPED;
    destination.isPrinting = state == IPP_PSTATE_PROCESSING;
}

/// Takes over the attribute's value, unless it has another syntax than the standard gives it.
void take(ipp_attribute_t *attribute, Destination &destination)
{
    const QByteArrayView name(ippGetName(attribute));
    const ipp_tag_t tag = ippGetValueTag(attribute);
    if (name == "printer-name" && tag == IPP_TAG_NAME)
        destination.name.queue = text(attribute);
    else if (name == "printer-info" && tag == IPP_TAG_TEXT)
        destination.description = shownServerText(text(attribute));
    else if (name == "printer-location" && tag == IPP_TAG_TEXT)
        destination.location = shownServerText(text(attribute));
    else if (name == "printer-state" && tag == IPP_TAG_ENUM)
        takeState(attribute, destination);
    else if (name == "printer-state-message" && tag == IPP_TAG_TEXT)
        destination.stateMessage = shownServerText(text(attribute));
    else if (name == "printer-state-reasons" && tag == IPP_TAG_KEYWORD)
        destination.reasons = reasonsOf(attribute);
    else if (name == "printer-is-accepting-jobs" && tag == IPP_TAG_BOOLEAN)
        destination.isAccepting = ippGetBoolean(attribute, 0) != 0;
}

/// One destination for each group of a printer's attributes, in the order of the answer.
QList<Destination> destinationsOf(ipp_t *answer)
{
    QList<Destination> found;
    bool isInPrinter = false;
    for (ipp_attribute_t *one = ippFirstAttribute(answer); one; one = ippNextAttribute(answer)) {
        const bool wasInPrinter = isInPrinter;
        isInPrinter = ippGetGroupTag(one) == IPP_TAG_PRINTER; // groups are parted by nameless ones
        if (isInPrinter && !wasInPrinter)
            found += Destination();
        if (isInPrinter)
            take(one, found.last());
    }
    return found;
}

/// Whether the name can be given to -d and stand in lpoptions: others cannot be printed to.
bool isQueueName(const QString &name)
{
    return !name.isEmpty() && std::ranges::all_of(name, [](QChar one) {
        return one.isPrint() && !one.isSpace() && one != u'/' && one != u'#';
    });
}

/// In order, each name once: to a server, those that differ in the case of letters are one.
QList<Destination> sorted(QList<Destination> found)
{
    const auto key = [](const Destination &one) { return one.name.queue.toCaseFolded(); };
    found.removeIf([](const Destination &one) { return !isQueueName(one.name.queue); });
    std::ranges::stable_sort(found, {}, key);
    const auto rest = std::unique(
        found.begin(), found.end(),
        [&](const Destination &one, const Destination &other) { return key(one) == key(other); });
    found.erase(rest, found.end());
    return found;
}

IppHandle listRequest()
{
    IppHandle request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS)); // and classes
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 requestingUser().constData());
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(kWanted.size()), nullptr, kWanted.data());
    return request;
}

/// A server without queues, or without a default one, says that it found nothing.
bool foundNothing(const ServerConnection &connection)
{
    return connection.lastEnd().kind == ExchangeEnd::Kind::Answered &&
           connection.lastEnd().status == IPP_STATUS_ERROR_NOT_FOUND;
}

Result<QueueName> defaultOf(ServerConnection &connection)
{
    IppHandle request(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-name");
    const IppHandle response = connection.request(std::move(request), "/");
    if (!connection.succeeded())
        return foundNothing(connection) ? Result<QueueName>() : connection.lastFault();
    ipp_attribute_t *name = ippFindAttribute(response.get(), "printer-name", IPP_TAG_NAME);
    const QString queue = name ? text(name) : QString();
    return QueueName{isQueueName(queue) ? queue : QString(), {}};
}

void markDefault(QList<Destination> &destinations, const QueueName &name)
{
    for (Destination &one : destinations)
        one.isDefault = one.name == name;
}

} // namespace

QList<Destination> withInstances(QList<Destination> destinations)
{
    destinations.removeIf([](const Destination &one) { return !one.name.instance.isNull(); });
    const QList<QueueName> instances = savedInstances();
    QList<Destination> all;
    for (const Destination &queue : std::as_const(destinations)) {
        all += queue;
        const qsizetype first = all.size();
        for (const QueueName &instance : instances) {
            if (instance.queue == queue.name.queue) {
                all += queue;
                all.last().name = instance;
                all.last().isDefault = false;
            }
        }
        std::ranges::sort(all.begin() + first, all.end(), {},
                          [](const Destination &one) { return one.name.instance.toCaseFolded(); });
    }
    return all;
}

QList<Destination> queuesOf(ipp_t *answer)
{
    return sorted(destinationsOf(answer));
}

Result<QList<Destination>> listDestinations(const QString &server, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    const IppHandle response = connection.request(listRequest(), "/");
    if (foundNothing(connection))
        return {};
    if (!connection.succeeded())
        return connection.lastFault();
    QList<Destination> destinations = withInstances(queuesOf(response.get()));
    if (const Result<QueueName> byServer = defaultOf(connection))
        markDefault(destinations, *byServer);
    return destinations;
}

Result<QueueName> serverDefault(const QString &server, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    return defaultOf(connection);
}
