#include "dialog/cups/PasswordWords.h"

#include "dialog/cups/Passwords.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct PurposeRow
{
    PasswordPurpose purpose;
    const char *sentence; ///< %1: the server, %2: the queue
};

constexpr std::array kPurposes{
    PurposeRow{PasswordPurpose::Listing,
               QT_TRANSLATE_NOOP("PasswordWords",
                                 "The print server %1 wants to know who asks for its printers.")},
    PurposeRow{PasswordPurpose::Settings,
               QT_TRANSLATE_NOOP("PasswordWords", "The print server %1 wants to know who asks for "
                                                  "the settings of %2.")},
    PurposeRow{
        PasswordPurpose::Printing,
        QT_TRANSLATE_NOOP("PasswordWords", "The print server %1 wants to know who prints to %2.")},
    PurposeRow{PasswordPurpose::ChangingJob,
               QT_TRANSLATE_NOOP("PasswordWords",
                                 "The print server %1 wants to know who changes a job on %2.")},
    PurposeRow{PasswordPurpose::HeldJob,
               QT_TRANSLATE_NOOP("PasswordWords", "The print server %1 holds the job until the "
                                                  "printer behind %2 knows who prints.")},
    PurposeRow{PasswordPurpose::PrinterOfJob,
               QT_TRANSLATE_NOOP("PasswordWords", "The printer behind %2 on the print server %1 "
                                                  "wants to know who prints.")},
};

QString purposeOf(const PasswordQuestion &question)
{
    const auto *row = std::ranges::find(kPurposes, question.purpose, &PurposeRow::purpose);
    const QString sentence = QCoreApplication::translate("PasswordWords", row->sentence);
    return sentence.contains("%2"_L1) ? sentence.arg(question.server, question.queue)
                                      : sentence.arg(question.server);
}

} // namespace

QStringList sentencesOf(const PasswordQuestion &question)
{
    QStringList sentences{purposeOf(question)};
    if (question.isAgain)
        sentences.prepend(QCoreApplication::translate(
            "PasswordWords", "The user name or the password was not right."));
    if (question.isReadable)
        sentences += QCoreApplication::translate(
            "PasswordWords",
            "The connection is not encrypted: others in the network may read the password.");
    return sentences;
}
