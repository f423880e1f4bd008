#include "dialog/cups/Destinations.h"

#include "dialog/cups/ServerConnection.h"

#include <memory>

namespace {

constexpr auto kStopped = "5"; // IPP_PSTATE_STOPPED as text

QString value(const cups_dest_t &dest, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, dest.num_options, dest.options));
}

Destination destination(const cups_dest_t &dest)
{
    Destination found;
    found.name = {QString::fromUtf8(dest.name), QString::fromUtf8(dest.instance)};
    found.description = value(dest, "printer-info");
    found.location = value(dest, "printer-location");
    found.isDefault = dest.is_default != 0;
    found.isAccepting = value(dest, "printer-is-accepting-jobs") != QLatin1String("false");
    found.isStopped = value(dest, "printer-state") == QLatin1String(kStopped);
    return found;
}

} // namespace

DestinationList listDestinations(const QString &server, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    DestinationList list;
    if (!connection.isConnected()) {
        list.answer = connection.lastAnswer();
        return list;
    }
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests2(connection.http(), &dests);
    for (int index = 0; index < count; ++index)
        list.destinations += destination(dests[index]);
    cupsFreeDests(count, dests);
    // A server that fell silent gives an empty list and claims success.
    if (list.destinations.isEmpty() && !guard.mayWait())
        list.answer = connection.lastAnswer();
    return list;
}

DefaultQueue serverDefault(const QString &server, CallGuard &guard)
{
    ServerConnection connection(server, guard);
    if (!connection.isConnected())
        return {{}, connection.lastAnswer()};
    IppHandle request(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-name");
    const IppHandle response = connection.request(std::move(request), "/");
    if (!response || !guard.mayWait())
        return {{}, connection.lastAnswer()};
    ipp_attribute_t *name = ippFindAttribute(response.get(), "printer-name", IPP_TAG_NAME);
    return {{QString::fromUtf8(name ? ippGetString(name, 0, nullptr) : nullptr), {}}, {}};
}
