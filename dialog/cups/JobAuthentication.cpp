#include "dialog/cups/JobAuthentication.h"

#include "dialog/cups/JobControl.h"
#include "dialog/cups/QueueOutlook.h"
#include "dialog/cups/ServerConnection.h"
#include "dialog/cups/ServerRequests.h"

#include <QtCore/QCoreApplication>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostAnswers = 3;

PasswordQuestion questionOf(const ServerConnection &connection, PasswordPurpose purpose,
                            const QString &queue, const QStringList &names)
{
    return {.purpose = purpose,
            .server = connection.serverName(),
            .queue = queue,
            .user = QString::fromUtf8(requestingUser()),
            .needsDomain = names.contains(u"domain"_s)};
}

Fault notSaid(const JobPlace &job)
{
    return {FaultKind::NeedsPassword,
            QCoreApplication::translate("JobAuthentication",
                                        "Job %1 on %2 stays held: nobody has said who prints.")
                .arg(QString::number(job.id), job.queue)};
}

Fault nobodySays(const QString &queue)
{
    return {FaultKind::NeedsPassword,
            QCoreApplication::translate("JobAuthentication",
                                        "The printer behind %1 wants to know who prints, and "
                                        "nobody has said it.")
                .arg(queue)};
}

} // namespace

// An empty value for a name that nobody knows.
void addAuthInfo(ipp_t *request, const AuthInfo &info)
{
    if (!info.who || info.names.isEmpty())
        return;
    const QByteArray user = info.who->user.toUtf8();
    const QByteArray domain = info.who->domain.toUtf8();
    std::vector<const char *> values;
    for (const QString &name : info.names)
        values.push_back(name == "username"_L1   ? user.constData()
                         : name == "password"_L1 ? info.who->password.text()
                         : name == "domain"_L1   ? domain.constData()
                                                 : "");
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_TEXT, "auth-info",
                  static_cast<int>(values.size()), nullptr, values.data());
}

Result<AuthInfo> askWhoPrints(ServerConnection &connection, const QString &queue,
                              const QStringList &names)
{
    if (names.isEmpty() || !PasswordScope::question())
        return AuthInfo();
    if (!connection.encrypt())
        return connection.lastFault(queue);
    const PasswordQuestion question =
        questionOf(connection, PasswordPurpose::PrinterOfJob, queue, names);
    if (const auto before = toldPrinter(question))
        return AuthInfo{names, before->who, question};
    const std::optional<Credentials> who = askForPassword(question, connection.guard());
    return who ? Result<AuthInfo>(AuthInfo{names, who, question}) : nobodySays(queue);
}

void noteWhoPrints(const AuthInfo &info, int jobId)
{
    if (!info.who)
        return;
    noteToldPrinter(info.question, *info.who, jobId);
    keepPassword(info.question, *info.who); // a wrong one will be replaced
}

Result<> authenticateJob(const JobPlace &job, CallGuard &guard)
{
    ServerConnection connection(job.server, guard);
    const Result<QueueTerms> terms = askTerms(connection, job.queue);
    if (!terms || !connection.succeeded() || !connection.encrypt())
        return connection.lastFault(job.queue);
    const QStringList names = terms->authInfo;
    PasswordQuestion question = questionOf(connection, PasswordPurpose::HeldJob, job.queue, names);
    const std::optional<ToldPrinter> before = toldPrinter(question);
    question.isAgain = before && before->jobs.contains(job.id); // and was not right
    for (int asked = 0; asked < kMostAnswers; ++asked) {
        const bool isKnown = asked == 0 && before && !question.isAgain;
        const std::optional<Credentials> who =
            isKnown ? before->who : askForPassword(question, guard);
        if (!who)
            return asked == 0 ? notSaid(job) : connection.lastFault(job.queue);
        IppHandle request = jobRequest(IPP_OP_CUPS_AUTHENTICATE_JOB, job.queue, job.id);
        addAuthInfo(request.get(), {names, who, question});
        connection.request(std::move(request), queueResource(job.queue));
        if (connection.succeeded()) {
            noteToldPrinter(question, *who, job.id);
            keepPassword(question, *who);
            return {};
        }
        question.isAgain = true;
        question.user = who->user;
    }
    return connection.lastFault(job.queue);
}
