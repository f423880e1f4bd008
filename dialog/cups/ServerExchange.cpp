#include "dialog/cups/ServerConnection.h"

#include <QtCore/QBuffer>

// Requests, and how their answers are fetched.

namespace {

constexpr int kGoAheadWait = 1000; // ms; servers of old do not know that they should say so

} // namespace

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
        endBy(ExchangeEnd::Kind::Unreadable);
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
            endBy(ExchangeEnd::Kind::Unreadable);
        if (answer.ipp)
            m_end = {ExchangeEnd::Kind::Answered, answer.status, answer.text, m_end.isAboutJob};
    }
    m_guard.unlimitTime();
    return std::move(answer.ipp);
}
