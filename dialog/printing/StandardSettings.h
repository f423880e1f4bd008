#pragma once

#include "dialog/host/AttributeRules.h"
#include "dialog/printing/PrintWishes.h"
#include "dialog/work/Result.h"
#include "platform/ppd/CupsPPD.h"

#include <functional>

/// Wishes in the names of the printer.
struct NamedWishes
{
    QList<RequestedChoice> wanted;
    Result<> state; ///< the fault of the first wish that the printer has no choice for
};

/// Those of several choices of one meaning that count; none: all of them do.
using ChoiceNarrowing = std::function<QList<RequestedChoice>(const QList<RequestedChoice> &)>;

/// The wishes with what was asked for by the names that every printer has (`media`, `sides`,
/// `print-quality`, `output-bin`, `print-color-mode`) as choices of the PPD (null: none, and they
/// stay), as libcups maps them, else as the plug-in's rules say it of a single choice, or of
/// several of which one is left (`narrowed`; null: all are): the printer's own names and rules
/// count from then on. The marks stay as they are.
NamedWishes inPrintersNames(ppd_file_t *ppd, const QList<AttributeRule> &rules,
                            const QList<RequestedChoice> &wanted,
                            const ChoiceNarrowing &narrowed = {});
