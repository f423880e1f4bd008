#include "dialog/cups/JobAuthentication.h"

#include "dialog/cups/JobControl.h"
#include "dialog/cups/Passwords.h"
#include "dialog/cups/ServerConnection.h"

#include <QtCore/QCoreApplication>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostAnswers = 3;

/// What the queue wants to know, as `auth-info-required` names it, in its order.
QStringList requiredInfo(ServerConnection &connection, const QString &queue)
{
    IppHandle request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request.get(), {"auth-info-required"});
    const IppHandle answer = connection.request(std::move(request), queueResource(queue));
    ipp_attribute_t *required =
        ippFindAttribute(answer.get(), "auth-info-required", IPP_TAG_KEYWORD);
    QStringList names;
    for (int index = 0; connection.succeeded() && index < ippGetCount(required); ++index)
        names += QString::fromUtf8(ippGetString(required, index, nullptr));
    names.removeAll(u"none"_s);
    return names;
}

/// The values that the queue wants, in its order; empty for a name that nobody knows.
void addInfo(ipp_t *request, const QStringList &names, const Credentials &who)
{
    const QByteArray user = who.user.toUtf8();
    const QByteArray domain = who.domain.toUtf8();
    std::vector<const char *> values;
    for (const QString &name : names)
        values.push_back(name == "username"_L1   ? user.constData()
                         : name == "password"_L1 ? who.password.text()
                         : name == "domain"_L1   ? domain.constData()
                                                 : "");
    if (!values.empty())
        ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_TEXT, "auth-info",
                      static_cast<int>(values.size()), nullptr, values.data());
}

Fault notSaid(const JobPlace &job)
{
    return {FaultKind::NeedsPassword,
            QCoreApplication::translate("JobAuthentication",
                                        "Job %1 on %2 stays held: nobody has said who prints.")
                .arg(QString::number(job.id), job.queue)};
}

} // namespace

Result<> authenticateJob(const JobPlace &job, CallGuard &guard)
{
    ServerConnection connection(job.server, guard);
    const QStringList names = requiredInfo(connection, job.queue);
    if (!connection.succeeded() || !connection.encrypt())
        return connection.lastFault(job.queue);
    PasswordQuestion question{.purpose = PasswordPurpose::HeldJob,
                              .server = connection.serverName(),
                              .queue = job.queue,
                              .user = QString::fromUtf8(requestingUser()),
                              .needsDomain = names.contains(u"domain"_s)};
    for (int asked = 0; asked < kMostAnswers; ++asked) {
        const std::optional<Credentials> who = askForPassword(question, guard);
        if (!who)
            return asked == 0 ? notSaid(job) : connection.lastFault(job.queue);
        IppHandle request = jobRequest(IPP_OP_CUPS_AUTHENTICATE_JOB, job.queue, job.id);
        addInfo(request.get(), names, *who);
        connection.request(std::move(request), queueResource(job.queue));
        if (connection.succeeded()) {
            keepPassword(question, *who);
            return {};
        }
        question.isAgain = true;
        question.user = who->user;
    }
    return connection.lastFault(job.queue);
}
