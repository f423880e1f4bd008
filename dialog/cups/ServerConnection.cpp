#include "dialog/cups/ServerConnection.h"

#include "dialog/cups/Certificates.h"
#include "dialog/job/OutgoingText.h"

#include <QtCore/QBuffer>
#include <QtCore/QByteArray>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

#include <cerrno>
#include <vector>

namespace {

using Kind = ExchangeEnd::Kind;

constexpr double kTick = 0.25;        // seconds between two looks at the guard
constexpr int kLongestConnect = 5000; // ms
constexpr int kGoAheadWait = 1000;    // ms; servers of old do not know that they should say so
constexpr auto kLocalServer = "localhost";

int mayWaitOn(http_t *, void *guard)
{
    return static_cast<CallGuard *>(guard)->mayFinish() ? 1 : 0;
}

/// Has libcups take the server for this thread's own, its port included.
void useServer(const QString &server)
{
    cupsSetServer(nullptr); // a name without a port would leave the former one's port
    if (!server.isNull())
        cupsSetServer(server.toUtf8().constData());
}

// libcups would ask on the terminal, which blocks a dialog for ever.
const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

/// Not connected yet: with the guard in place, a handshake for TLS waits no longer than it says.
http_t *newHandle(http_encryption_t encryption, CallGuard &guard)
{
    http_t *http =
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, encryption, 1, 0, nullptr);
    if (http)
        httpSetTimeout(http, kTick, mayWaitOn, &guard);
    return http;
}

/// What the server offers beside the ways that need no password.
QByteArray passwordSchemes(const QByteArray &challenge)
{
    static const QRegularExpression scheme(
        QStringLiteral(R"re(\b(?:Basic|Digest)\b(?:[\s,]+\w+=(?:"[^"]*"|[^\s,"]+))*)re"),
        QRegularExpression::CaseInsensitiveOption);
    QByteArrayList schemes;
    for (auto found = scheme.globalMatch(QString::fromLatin1(challenge)); found.hasNext();)
        schemes += found.next().captured().toLatin1();
    return schemes.join(", ");
}

bool closesConnection(http_t *http)
{
    return qstricmp(httpGetField(http, HTTP_FIELD_CONNECTION), "close") == 0;
}

} // namespace

ServerConnection::ServerConnection(const QString &server, CallGuard &guard)
    : m_guard(guard), m_name(nameOfServer(server)), m_watch(guard), m_login(m_name)
{
    cupsSetPasswordCB2(noPassword, nullptr);
    m_http.reset(newHandle(cupsEncryption(), guard));
    if (m_http && !connectAnew())
        m_http.reset();
    if (!m_http)
        endBy(Kind::NotConnected);
}

bool ServerConnection::connectAnew()
{
    m_isSpent = false;
    const int timeout = static_cast<int>(m_guard.timeout().count());
    if (httpReconnect2(m_http.get(), qMin(timeout, kLongestConnect), m_guard.cancelFlag()) != 0)
        return false;
    m_watch.watch(httpGetFd(m_http.get()));
    m_guard.stampSignOfLife();
    return isTrusted();
}

/// Before anything is sent.
bool ServerConnection::isTrusted()
{
    m_isUntrusted = !isKnownServer(m_http.get(), m_name);
    return !m_isUntrusted;
}

/// Whether others could read what goes to the server.
bool ServerConnection::isReadable() const
{
    return !httpIsEncrypted(m_http.get()) && !httpAddrLocalhost(httpGetAddress(m_http.get()));
}

bool ServerConnection::startEncryption()
{
    return httpEncryption(m_http.get(), HTTP_ENCRYPTION_REQUIRED) == 0 && isTrusted();
}

bool ServerConnection::encrypt()
{
    if (!isReadable() || startEncryption())
        return true;
    endBy(Kind::HttpStatus, HTTP_STATUS_UPGRADE_REQUIRED);
    return false;
}

void ServerConnection::endBy(Kind kind, int status)
{
    m_isSpent = true;
    m_end.status = status;
    if (m_guard.isCancelled())
        m_end.kind = Kind::Cancelled;
    else if (m_http && m_guard.hasTimedOut())
        m_end.kind = Kind::Silent;
    else if (m_http && m_guard.isOutOfTime())
        m_end.kind = Kind::TooSlow;
    else
        m_end.kind = m_isUntrusted ? Kind::OtherCertificate : kind;
    if (m_end.kind == Kind::OtherCertificate)
        m_end.text = certificatePath(m_name);
}

void ServerConnection::endByTransport()
{
    const int error = httpError(m_http.get());
    if (error == 0 || error == EINVAL) // no fault of the connection: libcups cannot read the answer
        endBy(Kind::Unreadable);
    else if (error == EPIPE || error == ECONNRESET)
        endBy(Kind::Closed);
    else
        endBy(Kind::Broken, error);
}

/// libcups keeps no error of a connection that was reset while it wrote.
void ServerConnection::endBySending()
{
    if (httpError(m_http.get()) == 0)
        endBy(Kind::Closed);
    else
        endByTransport();
}

/// Makes sure of a connection for a request and all of its answer.
bool ServerConnection::begin(int timeouts)
{
    m_end = {};
    if (!m_http || !m_guard.mayWait()) {
        endBy(Kind::NotConnected);
        return false;
    }
    m_login.begin();
    m_guard.stampSignOfLife();
    m_guard.limitTime(m_timeouts = timeouts);
    // A connection that has something to read before a request was sent has been closed.
    const bool isOver = m_isSpent || closesConnection(m_http.get()) || httpWait(m_http.get(), 0);
    if (!isOver || connectAnew())
        return true;
    endBy(Kind::NotConnected);
    return false;
}

/// Sends the request and gives the status of HTTP. Where the server demands TLS or credentials, the
/// demand is met and the request is sent again.
int ServerConnection::ask(const char *method, const QByteArray &resource,
                          const std::function<int()> &send)
{
    int status = send();
    for (int attempt = 1; attempt < kMostAttempts && meets(status, method, resource); ++attempt)
        status = send();
    if (status != HTTP_STATUS_UNAUTHORIZED && status != HTTP_STATUS_ERROR)
        m_login.succeed(); // "not found" is said to people who are known
    return status;
}

bool ServerConnection::meets(int demand, const char *method, const QByteArray &resource)
{
    // On a new connection: the rest of the answer may still arrive on the old one.
    if (demand == HTTP_STATUS_UNAUTHORIZED)
        return logIn(method, resource) && connectAnew();
    return demand == HTTP_STATUS_UPGRADE_REQUIRED && connectAnew() && startEncryption();
}

bool ServerConnection::logIn(const char *method, const QByteArray &resource)
{
    if (m_login.wasTried()) {
        // libcups would try what was refused twice more; a new handle knows nothing of it.
        const QByteArray challenge = httpGetField(m_http.get(), HTTP_FIELD_WWW_AUTHENTICATE);
        const bool isEncrypted = httpIsEncrypted(m_http.get()) != 0;
        std::unique_ptr<http_t, HttpCloser> fresh(
            newHandle(isEncrypted ? HTTP_ENCRYPTION_REQUIRED : cupsEncryption(), m_guard));
        if (!fresh)
            return false;
        m_http.swap(fresh);
        if (!connectAnew())
            return false;
        httpSetField(m_http.get(), HTTP_FIELD_WWW_AUTHENTICATE,
                     passwordSchemes(challenge).constData());
    }
    cupsSetPasswordCB2(password, this);
    const int done = cupsDoAuthentication(m_http.get(), method, resource.constData());
    cupsSetPasswordCB2(noPassword, nullptr);
    return done == 0;
}

/// What libcups asks for; it takes a copy at once.
const char *ServerConnection::password(const char *, http_t *, const char *, const char *,
                                       void *connection)
{
    auto &self = *static_cast<ServerConnection *>(connection);
    self.m_guard.unlimitTime(); // people take their time
    const std::optional<Credentials> who = self.m_login.next(self.isReadable(), self.m_guard);
    self.m_guard.limitTime(self.m_timeouts);
    if (!who)
        return nullptr;
    cupsSetUser(who->user.toUtf8().constData());
    return self.m_login.tried().text();
}

bool ServerConnection::post(ipp_t *request, const QByteArray &resource, bool dataFollow)
{
    http_t *http = m_http.get();
    httpClearFields(http);
    httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    httpSetField(http, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(http));
    httpSetLength(http, dataFollow ? 0 : ippLength(request)); // 0: in chunks
    httpSetExpect(http, dataFollow ? HTTP_STATUS_CONTINUE : HTTP_STATUS_NONE);
    if (httpPost(http, resource.constData()) != 0)
        return false;
    m_watch.watch(httpGetFd(http)); // libcups may have connected anew
    ippSetState(request, IPP_STATE_IDLE);
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippWrite(http, request);
    return state == IPP_STATE_DATA;
}

/// Waits for the status of HTTP; a number, since a server may say any.
int ServerConnection::status()
{
    int status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE && m_guard.mayFinish())
        status = httpUpdate(m_http.get());
    return status;
}

/// The status with which the server answers before it has any data. A silent one is taken for
/// "continue".
int ServerConnection::goAhead()
{
    return httpWait(m_http.get(), kGoAheadWait) ? httpUpdate(m_http.get()) : HTTP_STATUS_CONTINUE;
}

IppHandle ServerConnection::request(IppHandle request, const QByteArray &resource, int timeouts)
{
    if (!begin(timeouts))
        return {};
    m_end.isAboutJob = ippFindAttribute(request.get(), "job-id", IPP_TAG_INTEGER) != nullptr;
    return readAnswer(ask("POST", resource, [&]() -> int {
        return post(request.get(), resource, false) ? status() : HTTP_STATUS_ERROR;
    }));
}

bool ServerConnection::beginUpload(const IppHandle &request, const QByteArray &resource)
{
    if (!begin(kTimeoutsPerExchange))
        return false;
    m_end.isAboutJob = true;
    const int status = ask("POST", resource, [&]() -> int {
        return post(request.get(), resource, true) ? goAhead() : HTTP_STATUS_ERROR;
    });
    if (status == HTTP_STATUS_CONTINUE)
        m_guard.unlimitTime();
    else
        takeRefusal(status);
    return status == HTTP_STATUS_CONTINUE;
}

bool ServerConnection::upload(const char *data, qint64 size)
{
    if (!m_guard.mayWait() ||
        httpWrite2(m_http.get(), data, static_cast<std::size_t>(size)) != size) {
        endBySending();
        return false;
    }
    m_guard.stampSignOfLife();
    if (!httpWait(m_http.get(), 0))
        return true;
    m_guard.limitTime(kTimeoutsPerExchange);
    const int status = httpUpdate(m_http.get());
    if (status == HTTP_STATUS_CONTINUE)
        m_guard.unlimitTime();
    else
        takeRefusal(status);
    return status == HTTP_STATUS_CONTINUE;
}

/// Reads an answer that comes before all data were sent. Even one that reports success is a
/// refusal.
void ServerConnection::takeRefusal(int status)
{
    if (readAnswer(status) && succeeded())
        endBy(Kind::Unreadable);
}

IppHandle ServerConnection::endUpload()
{
    m_guard.expectSilence(kTimeoutsAfterDocument);
    m_guard.limitTime(kTimeoutsPerExchange);
    const bool isSent = httpWrite2(m_http.get(), "", 0) >= 0; // the last chunk
    return readAnswer(isSent ? status() : HTTP_STATUS_ERROR);
}

bool ServerConnection::download(const QByteArray &resource, QFile &file, qint64 largest,
                                const QByteArray &since)
{
    if (!begin(kTimeoutsPerPPD))
        return false;
    bool isFetched = false;
    const int answered = ask("GET", resource, [&]() -> int {
        httpClearFields(m_http.get());
        httpSetField(m_http.get(), HTTP_FIELD_AUTHORIZATION, httpGetAuthString(m_http.get()));
        httpSetField(m_http.get(), HTTP_FIELD_IF_MODIFIED_SINCE, since.constData());
        if (httpGet(m_http.get(), resource.constData()) != 0)
            return HTTP_STATUS_ERROR;
        m_watch.watch(httpGetFd(m_http.get()));
        return status();
    });
    if (isOk(answered)) {
        BodyEnd end = readBody(m_http.get(), m_guard, file, largest);
        if (end == BodyEnd::Whole && !file.flush())
            end = BodyEnd::NotStored;
        isFetched = end == BodyEnd::Whole;
        endByBody(end, file);
    } else if (answered == HTTP_STATUS_NOT_MODIFIED) {
        httpFlush(m_http.get());
        m_isSpent = false; // such an answer has no body
    }
    m_guard.unlimitTime();
    return isFetched;
}

HttpDates ServerConnection::lastDates() const
{
    return {httpGetField(m_http.get(), HTTP_FIELD_DATE),
            httpGetField(m_http.get(), HTTP_FIELD_LAST_MODIFIED)};
}

/// Whether the status of HTTP is 200; notes the fault otherwise.
bool ServerConnection::isOk(int status)
{
    if (status == HTTP_STATUS_ERROR || status == HTTP_STATUS_CONTINUE)
        endByTransport();
    else if (status == HTTP_STATUS_UNAUTHORIZED && m_login.wasTried())
        endBy(Kind::WrongPassword);
    else if (status != HTTP_STATUS_OK)
        endBy(Kind::HttpStatus, status);
    return status == HTTP_STATUS_OK;
}

void ServerConnection::endByBody(BodyEnd end, const QIODevice &to)
{
    switch (end) {
    case BodyEnd::Whole:
        return;
    case BodyEnd::TooLarge:
        return endBy(Kind::TooLarge);
    case BodyEnd::NotStored:
        endBy(Kind::NotStored);
        m_end.text = to.errorString();
        return;
    case BodyEnd::CutShort:
    case BodyEnd::TooLate:
        return endBy(Kind::CutShort);
    }
}

IppHandle ServerConnection::readAnswer(int status)
{
    IppAnswer answer;
    if (isOk(status)) {
        QBuffer body;
        body.open(QIODevice::WriteOnly);
        const BodyEnd end = readBody(m_http.get(), m_guard, body, kLargestAnswer);
        // A message tells its own end. What is said in a whole one holds, even where the server
        // breaks off before HTTP's end: the job that it has accepted will print.
        answer = readIppAnswer(body.data());
        if (end != BodyEnd::Whole)
            endByBody(end, body);
        else if (!answer.ipp)
            endBy(Kind::Unreadable);
        if (answer.ipp)
            m_end = {Kind::Answered, answer.status, answer.text, m_end.isAboutJob};
    }
    m_guard.unlimitTime();
    return std::move(answer.ipp);
}

bool ServerConnection::succeeded() const
{
    return m_end.kind == Kind::Answered && isSuccess(m_end.status);
}

Fault ServerConnection::lastFault(const QString &queue) const
{
    ExchangeEnd end = m_end;
    if (succeeded())
        end.kind = Kind::Unreadable;
    return faultOf(end, m_name, queue);
}

QByteArray requestingUser()
{
    return outgoingText(QString::fromLocal8Bit(cupsUser()), "anonymous");
}

IppHandle queueRequest(ipp_op_t operation, const QString &queue)
{
    IppHandle request(ippNewRequest(operation));
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, kLocalServer, 0,
                     "/printers/%s", queue.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 requestingUser().constData());
    return request;
}

IppHandle jobRequest(ipp_op_t operation, const QString &queue, int jobId)
{
    IppHandle request = queueRequest(operation, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    return request;
}

void askFor(ipp_t *request, const QList<QByteArray> &names)
{
    std::vector<const char *> wanted;
    for (const QByteArray &name : names)
        wanted.push_back(name.constData());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
}

QByteArray queueResource(const QString &queue)
{
    return "/printers/" + QUrl::toPercentEncoding(queue);
}

QString nameOfServer(const QString &server)
{
    useServer(server);
    const QString host = QString::fromUtf8(cupsServer());
    if (server.startsWith(u'/'))
        return server;
    return host.startsWith(u'/') ? QString::fromLatin1(kLocalServer)
                                 : QStringLiteral("%1:%2").arg(host).arg(ippPort());
}

Fault silentServer(const QString &server)
{
    return faultOf({Kind::Silent, 0, {}, false}, nameOfServer(server), {});
}
