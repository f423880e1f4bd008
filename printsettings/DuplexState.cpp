#include "printsettings/VKInkPrintSetting14PDE.h"

#include "platform/pde/PPDText.h"

using namespace Qt::StringLiterals;

void VKInkPrintSetting14PDE::checkDuplex()
{
    const QString keyword = u"Duplex"_s;
    const ppd_option_t *option = findOption(ppd, keyword);
    const bool offered = option && findChoice(findOption(ppd, u"VKMediaType"_s), u"PlainDuplex"_s);
    // The default of `Duplex` is one-sided printing, whatever it is called.
    const QString marked = markedChoice(ppd, keyword);
    setFlag(DuplexOn, offered && (marked.isNull() || marked != ppdName(option->defchoice)));
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
    const QString duplex = u"PlainDuplex"_s;
    const QString mediaType = pendingValue(u"VKMediaType"_s);
    if (mediaType != duplex && mediaType != "Plain"_L1)
        return;
    setAndMarkValue(duplex, u"VKMediaType"_s);
    setDefaultQuality(duplex);
    if (popupInited)
        updateUI();
}
