#include "panel/VKPrintQualityPDE.h"

using namespace Qt::StringLiterals;

AlertContent VKPrintQualityPDE::noticeAlert(AlertStyle style, const QString &text,
                                            const QString &informative) const
{
    AlertContent content;
    content.style = style;
    content.text = text;
    content.informative = informative;
    content.buttons = {localized("OK")};
    return content;
}

AlertContent VKPrintQualityPDE::unsupportedPaperAlert() const
{
    const QString message =
        localized("Unsupported Paper MSG1") + u"\n\n"_s + localized("Unsupported Paper MSG2") +
        u'\n' + localized("Unsupported Paper MSG3") + u'\n' + localized("Unsupported Paper MSG4");
    return noticeAlert(AlertStyle::Warning, localized("Unsupported Paper Title"), message);
}

bool VKPrintQualityPDE::shouldPrint()
{
    checkFax();
    // A fax job prints without the panel saving its values.
    if (hasFlag(FaxOutput))
        return true;
    if (paperName == "UnsupportedPaper"_L1) {
        runAlert(unsupportedPaperAlert());
        return false;
    }
    saveValuesAndReturnError(nullptr);
    return true;
}
