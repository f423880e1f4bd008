#pragma once

#include "dialog/cups/Destinations.h"
#include "dialog/work/Result.h"

#include <QtCore/QList>
#include <QtCore/QString>

/// What is known when a printer is to be chosen for a person who has named none. A null queue:
/// there is none of that kind.
struct PrinterCandidates
{
    QueueName lastUsed;     ///< what this user printed to last on the server
    QueueName environment;  ///< of LPDEST or PRINTER
    QueueName savedDefault; ///< of lpoptions
    QList<Destination> listed;
};

/// Why a printer was chosen.
enum class ChoiceReason { LastUsed, Environment, SavedDefault, ServerDefault, OnlyOne, FirstReady };

struct PrinterChoice
{
    QueueName queue;
    ChoiceReason reason = ChoiceReason::LastUsed;

    bool operator==(const PrinterChoice &) const = default;
};

/// The printer to begin with: the first candidate that the server lists, in the order of
/// ChoiceReason. Of an instance that is no more, its queue. A fault when the server has no printer,
/// or none that takes jobs and none that anything speaks for.
Result<PrinterChoice> chosenPrinter(const PrinterCandidates &candidates);

/// One sentence that says which printer was chosen and why.
QString choiceSentence(const PrinterChoice &choice);
