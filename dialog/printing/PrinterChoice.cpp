#include "dialog/printing/PrinterChoice.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>
#include <optional>

namespace {

struct ReasonRow
{
    ChoiceReason reason;
    const char *sentence; ///< %1: the queue
};

constexpr std::array kReasons{
    ReasonRow{ChoiceReason::LastUsed,
              QT_TRANSLATE_NOOP("PrinterChoice", "%1 was chosen: you printed to it last.")},
    ReasonRow{ChoiceReason::Environment,
              QT_TRANSLATE_NOOP("PrinterChoice", "%1 was chosen: LPDEST or PRINTER names it.")},
    ReasonRow{ChoiceReason::SavedDefault,
              QT_TRANSLATE_NOOP("PrinterChoice", "%1 was chosen: it is your default printer.")},
    ReasonRow{ChoiceReason::ServerDefault,
              QT_TRANSLATE_NOOP("PrinterChoice",
                                "%1 was chosen: it is the print server's default printer.")},
    ReasonRow{ChoiceReason::OnlyOne,
              QT_TRANSLATE_NOOP("PrinterChoice", "%1 was chosen: it is the only printer.")},
    ReasonRow{ChoiceReason::FirstReady,
              QT_TRANSLATE_NOOP("PrinterChoice", "%1 was chosen: it is the first printer that "
                                                 "takes jobs, and none is the default.")},
};

bool hasSameQueue(const QueueName &one, const QueueName &other)
{
    return one.queue.compare(other.queue, Qt::CaseInsensitive) == 0;
}

/// The name as the server spells it; none when it has no such queue.
std::optional<QueueName> listedName(const QList<Destination> &listed, const QueueName &wanted)
{
    std::optional<QueueName> queue;
    for (const Destination &one : listed) {
        if (!hasSameQueue(one.name, wanted))
            continue;
        if (one.name.instance == wanted.instance)
            return one.name;
        if (one.name.instance.isNull())
            queue = one.name;
    }
    return queue;
}

QueueName serverDefaultOf(const QList<Destination> &listed)
{
    const auto found = std::ranges::find(listed, true, &Destination::isDefault);
    return found == listed.end() ? QueueName() : found->name;
}

/// The only queue, whatever instances it has.
QueueName onlyOne(const QList<Destination> &listed)
{
    const auto isQueue = [](const Destination &one) { return one.name.instance.isNull(); };
    return std::ranges::count_if(listed, isQueue) == 1 ? std::ranges::find_if(listed, isQueue)->name
                                                       : QueueName();
}

QueueName firstReady(const QList<Destination> &listed)
{
    const auto found = std::ranges::find(listed, true, &Destination::isAccepting);
    return found == listed.end() ? QueueName() : found->name;
}

Fault noPrinter(bool hasPrinters)
{
    return {FaultKind::NoPrinter,
            hasPrinters
                ? QCoreApplication::translate("PrinterChoice",
                                              "No printer takes jobs at present. Choose one, or "
                                              "try again later.")
                : QCoreApplication::translate("PrinterChoice",
                                              "The print server has no printer to print to.")};
}

} // namespace

Result<PrinterChoice> chosenPrinter(const PrinterCandidates &candidates)
{
    const QList<Destination> &listed = candidates.listed;
    const std::array<PrinterChoice, kReasons.size()> inOrder{
        {{candidates.lastUsed, ChoiceReason::LastUsed},
         {candidates.environment, ChoiceReason::Environment},
         {candidates.savedDefault, ChoiceReason::SavedDefault},
         {serverDefaultOf(listed), ChoiceReason::ServerDefault},
         {onlyOne(listed), ChoiceReason::OnlyOne},
         {firstReady(listed), ChoiceReason::FirstReady}}};
    for (const auto &[wanted, reason] : inOrder)
        if (const std::optional<QueueName> found = listedName(listed, wanted))
            return PrinterChoice{*found, reason};
    return noPrinter(!listed.isEmpty());
}

QString choiceSentence(const PrinterChoice &choice)
{
    const auto *row = std::ranges::find(kReasons, choice.reason, &ReasonRow::reason);
    return QCoreApplication::translate("PrinterChoice", row->sentence).arg(textOf(choice.queue));
}
