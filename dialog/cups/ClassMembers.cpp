#include "dialog/cups/ClassMembers.h"

#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostMembers = 32;

QString textOf(ipp_attribute_t *attribute, int index = 0)
{
    return shownServerText(QString::fromUtf8(ippGetString(attribute, index, nullptr)));
}

QStringList memberNames(ipp_t *printer)
{
    ipp_attribute_t *names = ippFindAttribute(printer, "member-names", IPP_TAG_NAME);
    QStringList members;
    for (int index = 0; index < std::min(ippGetCount(names), kMostMembers); ++index)
        members += textOf(names, index);
    return members;
}

/// By their names; the groups of printers are parted by nameless attributes.
QMap<QString, QString> modelsOf(ipp_t *answer)
{
    QMap<QString, QString> models;
    QString queue;
    QString model;
    for (ipp_attribute_t *one = ippFirstAttribute(answer); one; one = ippNextAttribute(answer)) {
        const QByteArrayView name(ippGetName(one));
        if (name.isEmpty())
            queue = model = QString();
        else if (name == "printer-name" && ippGetValueTag(one) == IPP_TAG_NAME)
            queue = textOf(one);
        else if (name == "printer-make-and-model" && ippGetValueTag(one) == IPP_TAG_TEXT)
            model = textOf(one);
        if (!queue.isEmpty() && !model.isEmpty())
            models.insert(queue, model);
    }
    return models;
}

} // namespace

QList<ClassMember> classMembers(ipp_t *printer, ServerConnection &connection)
{
    const QStringList names = memberNames(printer);
    if (names.size() < 2)
        return {};
    IppHandle request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 requestingUser().constData());
    askFor(request.get(), {"printer-name", "printer-make-and-model"});
    const IppHandle answer = connection.request(std::move(request), "/");
    const QMap<QString, QString> models = modelsOf(answer.get());
    QList<ClassMember> members;
    for (const QString &name : names)
        members += {name, models.value(name)};
    return connection.succeeded() ? members : QList<ClassMember>();
}

bool areOfDifferentModels(const QList<ClassMember> &members)
{
    return std::ranges::any_of(
        members, [&](const ClassMember &member) { return member.model != members.front().model; });
}
