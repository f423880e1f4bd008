#include "platform/printmanager/PMPageFormat.h"

namespace {

template <typename Value> OSStatus get(const PMPaper *paper, Value PMPaper::*member, Value *out)
{
    if (!paper || !out)
        return kPMInvalidParameter;
    *out = paper->*member;
    return noErr;
}

OSStatus getName(const PMPaper *paper, QString PMPaper::*member, QString *out)
{
    if (!paper || !out)
        return kPMInvalidParameter;
    if ((paper->*member).isNull())
        return kPMKeyNotFound;
    return get(paper, member, out);
}

} // namespace

OSStatus PMGetPageFormatPaper(const PMPageFormat *format, const PMPaper **paper)
{
    if (!paper)
        return kPMInvalidParameter;
    *paper = format && format->paper ? &*format->paper : nullptr;
    return *paper ? noErr : kPMInvalidParameter;
}

OSStatus PMPaperGetName(const PMPaper *paper, QString *name)
{
    return getName(paper, &PMPaper::name, name);
}

OSStatus PMPaperGetPPDPaperName(const PMPaper *paper, QString *name)
{
    return getName(paper, &PMPaper::ppdName, name);
}

OSStatus PMPaperGetWidth(const PMPaper *paper, double *width)
{
    return get(paper, &PMPaper::width, width);
}

OSStatus PMPaperGetHeight(const PMPaper *paper, double *height)
{
    return get(paper, &PMPaper::height, height);
}
