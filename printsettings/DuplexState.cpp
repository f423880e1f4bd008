#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/ppd/PPDText.h"
#include "printsettings/rules/TwoSidedMedium.h"

using namespace Qt::StringLiterals;

void VKInkPrintSetting14PDE::checkDuplex()
{
    const ppd_option_t *duplex = findOption(ppd, u"Duplex"_s);
    DuplexFacts facts;
    facts.plainDuplexOffered = findChoice(findOption(ppd, u"VKMediaType"_s), u"PlainDuplex"_s);
    facts.duplexOffered = duplex != nullptr;
    facts.defaultChoice = duplex ? ppdName(duplex->defchoice) : QString();
    facts.marked = markedChoice(ppd, u"Duplex"_s);
    setFlag(DuplexOn, isTwoSided(facts));
}

void VKInkPrintSetting14PDE::checkDuplexChange(const Notification &)
{
    const bool before = hasFlag(DuplexOn);
    checkDuplex();
    if (!hasFlag(DuplexOn)) {
        // The medium is turned back to "Plain" when the job is saved, not here.
        if (popupInited)
            updateUI();
    } else if (!before) {
        setPlainDuplex();
    }
}

void VKInkPrintSetting14PDE::setPlainDuplex()
{
    if (!followsTwoSided(pendingValue(u"VKMediaType"_s)))
        return;
    const QString duplex = u"PlainDuplex"_s;
    setAndMarkValue(duplex, u"VKMediaType"_s);
    setDefaultQuality(duplex);
    if (popupInited)
        updateUI();
}
