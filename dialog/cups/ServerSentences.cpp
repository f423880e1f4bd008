#include "dialog/cups/ServerSentences.h"

#include "dialog/cups/ServerLimits.h"
#include "dialog/files/PathBytes.h"
#include "dialog/files/TemporaryFile.h"
#include "dialog/work/Sentences.h"
#include "dialog/work/SystemReason.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <cups/http.h>
#include <cups/ipp.h>

#include <algorithm>
#include <array>
#include <climits>

namespace {

using Kind = ExchangeEnd::Kind;

/// A fault and its sentence, in which %1 is the server.
struct Said
{
    FaultKind kind;
    const char *sentence;
};

struct KindRow
{
    Kind kind;
    Said said;
};

// %2: the text that goes with the end, such as the system's word for errno.
constexpr std::array kKinds{
    KindRow{Kind::NotConnected,
            {FaultKind::Unreachable,
             QT_TRANSLATE_NOOP("Server", "The print server %1 cannot be reached.")}},
    KindRow{Kind::Broken,
            {FaultKind::Unreachable,
             QT_TRANSLATE_NOOP("Server", "The print server %1 broke off: %2.")}},
    KindRow{Kind::Closed,
            {FaultKind::Unreachable,
             QT_TRANSLATE_NOOP("Server",
                               "The print server %1 closed the connection without an answer.")}},
    KindRow{Kind::CutShort,
            {FaultKind::Unreachable,
             QT_TRANSLATE_NOOP("Server",
                               "The print server %1 broke off in the middle of its answer.")}},
    KindRow{
        Kind::Unreadable,
        {FaultKind::Refused,
         QT_TRANSLATE_NOOP("Server", "The answer of the print server %1 cannot be understood.")}},
    KindRow{Kind::WrongPassword,
            {FaultKind::NeedsPassword,
             QT_TRANSLATE_NOOP("Server", "The print server %1 does not accept the user name and "
                                         "the password.")}},
    KindRow{Kind::OtherCertificate,
            {FaultKind::Untrusted,
             QT_TRANSLATE_NOOP("Server",
                               "The print server %1 shows another certificate than before, and may "
                               "be another server: nothing was sent. The one before is in %2.")}},
    KindRow{Kind::TooLarge,
            {FaultKind::Refused,
             QT_TRANSLATE_NOOP("Server", "The answer of the print server %1 is too large.")}},
    KindRow{
        Kind::Silent,
        {FaultKind::Silent, QT_TRANSLATE_NOOP("Server", "The print server %1 does not answer.")}},
    KindRow{Kind::TooSlow,
            {FaultKind::Silent,
             QT_TRANSLATE_NOOP("Server", "The print server %1 takes too long to answer.")}},
};

/// Statuses with the same meaning. The first row that holds a status counts.
struct StatusRow
{
    int first;
    int last;
    Said said; ///< %2: the server's own words, or the status
};

struct QueueRow
{
    int status;
    Said said;                ///< %2: the queue
    const char *withoutQueue; ///< where none was asked for
};

constexpr Said kNoQueue{FaultKind::NotFound,
                        QT_TRANSLATE_NOOP("Server", "The print server %1 has no queue %2.")};
constexpr auto kNothing =
    QT_TRANSLATE_NOOP("Server", "The print server %1 does not know what it was asked for.");
constexpr Said kPassword{FaultKind::NeedsPassword,
                         QT_TRANSLATE_NOOP("Server", "The print server %1 lets nobody print to %2 "
                                                     "without a password.")};
constexpr auto kPasswordForAll =
    QT_TRANSLATE_NOOP("Server", "The print server %1 answers nobody without a password.");
constexpr Said kRefused{FaultKind::Refused,
                        QT_TRANSLATE_NOOP("Server", "The print server %1 refused: %2")};

constexpr std::array kIppAboutQueues{
    QueueRow{IPP_STATUS_ERROR_NOT_FOUND, kNoQueue, kNothing},
    QueueRow{IPP_STATUS_ERROR_NOT_AUTHENTICATED, kPassword, kPasswordForAll},
};
constexpr std::array kIppStatuses{
    StatusRow{IPP_STATUS_ERROR_INTERNAL,
              IPP_STATUS_ERROR_INTERNAL,
              {FaultKind::Refused,
               QT_TRANSLATE_NOOP("Server", "The print server %1 reports a fault: %2")}},
    StatusRow{0, 0xFFFF, kRefused},
};

constexpr std::array kHttpAboutQueues{
    QueueRow{HTTP_STATUS_UNAUTHORIZED, kPassword, kPasswordForAll},
    QueueRow{
        HTTP_STATUS_FORBIDDEN,
        {FaultKind::Refused,
         QT_TRANSLATE_NOOP("Server",
                           "The print server %1 does not allow this machine to print to %2.")},
        QT_TRANSLATE_NOOP("Server", "The print server %1 does not allow this machine to ask.")},
    QueueRow{HTTP_STATUS_NOT_FOUND, kNoQueue, kNothing},
};
constexpr std::array kHttpStatuses{
    StatusRow{300,
              399,
              {FaultKind::Refused,
               QT_TRANSLATE_NOOP("Server", "The print server %1 answered with a redirection, which "
                                           "is not followed (%2).")}},
    StatusRow{HTTP_STATUS_UPGRADE_REQUIRED,
              HTTP_STATUS_UPGRADE_REQUIRED,
              {FaultKind::Refused,
               QT_TRANSLATE_NOOP("Server", "The print server %1 demands an encrypted connection, "
                                           "which cannot be made.")}},
    StatusRow{
        500,
        599,
        {FaultKind::Refused, QT_TRANSLATE_NOOP("Server", "The print server %1 has a fault (%2).")}},
    StatusRow{
        INT_MIN,
        INT_MAX,
        {FaultKind::Refused, QT_TRANSLATE_NOOP("Server", "The print server %1 refused (%2).")}},
};

QString detailOf(const ExchangeEnd &end)
{
    switch (end.kind) {
    case Kind::Answered: {
        const QString text = shownServerText(end.text);
        return text.isEmpty() ? QStringLiteral("IPP 0x%1.").arg(end.status, 4, 16, QLatin1Char('0'))
                              : endedLikeASentence(text);
    }
    case Kind::HttpStatus:
        return QStringLiteral("HTTP %1").arg(end.status);
    case Kind::Broken:
        return systemReason(end.status);
    default:
        return end.text;
    }
}

Fault faultWith(FaultKind kind, const char *text, const QString &server, const QString &detail)
{
    const QString sentence = QCoreApplication::translate("Server", text);
    return {kind, sentence.contains(QLatin1String("%2")) ? sentence.arg(server, detail)
                                                         : sentence.arg(server)};
}

template <std::size_t QueueRows, std::size_t StatusRows>
Fault faultOfStatus(const std::array<QueueRow, QueueRows> &aboutQueues,
                    const std::array<StatusRow, StatusRows> &statuses, const ExchangeEnd &end,
                    const QString &server, const QString &queue)
{
    const auto *row = std::ranges::find(aboutQueues, end.status, &QueueRow::status);
    const bool isMissingJob =
        end.isAboutJob && row != aboutQueues.end() && row->said.kind == FaultKind::NotFound;
    if (row != aboutQueues.end() && !isMissingJob)
        return queue.isNull() ? faultWith(row->said.kind, row->withoutQueue, server, {})
                              : faultWith(row->said.kind, row->said.sentence, server, queue);
    const auto *other = std::ranges::find_if(statuses, [&](const StatusRow &one) {
        return one.first <= end.status && end.status <= one.last;
    });
    return faultWith(other->said.kind, other->said.sentence, server, detailOf(end));
}

Fault faultOfFolder(const QString &server, const QString &reason)
{
    return {FaultKind::Refused,
            QCoreApplication::translate("Server", "What the print server %1 sends cannot be kept "
                                                  "in the temporary folder %2: %3.")
                .arg(server, shownPath(pathOfBytes(temporaryFolder())), reason)};
}

} // namespace

Fault faultOf(const ExchangeEnd &end, const QString &server, const QString &queue)
{
    switch (end.kind) {
    case Kind::Cancelled:
        return {FaultKind::Cancelled,
                QCoreApplication::translate("Server", "Printing was cancelled.")};
    case Kind::Answered:
        return faultOfStatus(kIppAboutQueues, kIppStatuses, end, server, queue);
    case Kind::NotStored:
        return faultOfFolder(server, end.text);
    case Kind::HttpStatus:
        return faultOfStatus(kHttpAboutQueues, kHttpStatuses, end, server, queue);
    default:
        break;
    }
    const auto *row = std::ranges::find(kKinds, end.kind, &KindRow::kind);
    return faultWith(row->said.kind, row->said.sentence, server, detailOf(end));
}

QString shownServerText(const QString &text)
{
    QString shown = displayText(text).simplified();
    if (shown.size() <= kLongestText)
        return shown;
    shown.truncate(kLongestText);
    if (shown.back().isHighSurrogate())
        shown.chop(1);
    return shown + QChar(0x2026);
}
