#include "printsettings/JobPaper.h"

#include "platform/pde/PDEPluginCallback.h"
#include "platform/printmanager/PMPageFormat.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "platform/printmanager/PMTicketKeys.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

CustomSizeLimits limitsOf(const ppd_file_t &ppd)
{
    return {QSizeF(ppd.custom_min[0], ppd.custom_min[1]),
            QSizeF(ppd.custom_max[0], ppd.custom_max[1])};
}

std::optional<QSizeF> sizeOf(const PMPaper *paper)
{
    QSizeF size;
    if (PMPaperGetWidth(paper, &size.rwidth()) != noErr ||
        PMPaperGetHeight(paper, &size.rheight()) != noErr)
        return std::nullopt;
    return size;
}

} // namespace

bool JobPaper::offersTicket() const
{
    return m_host && m_host->respondsTo(HostOperation::PrintSettings);
}

const PMPaper *JobPaper::pagePaper() const
{
    if (!m_host || !m_host->respondsTo(HostOperation::PageFormat))
        return nullptr;
    const PMPaper *paper = nullptr;
    PMGetPageFormatPaper(m_host->pageFormat(), &paper);
    return paper;
}

QString JobPaper::mappedName() const
{
    QVariant mapped;
    if (offersTicket())
        PMPrintSettingsGetValue(m_host->printSettings(), kPMMappedPaperKey, &mapped);
    return mapped.toString();
}

QString JobPaper::pageName() const
{
    QString name;
    PMPaperGetName(pagePaper(), &name);
    return name;
}

QString JobPaper::checkedName(const QString &name) const
{
    const PMPaper *paper = name == "Letter"_L1 ? pagePaper() : nullptr;
    QString ppdName;
    if (!paper || !m_ppd || PMPaperGetPPDPaperName(paper, &ppdName) == noErr)
        return name;
    const std::optional<QSizeF> size = sizeOf(paper);
    return !size || isWithinLimits(*size) ? name : u"UnsupportedPaper"_s;
}

std::optional<QSizeF> JobPaper::size() const
{
    if (!offersTicket())
        return QSizeF(0, 0);
    const std::optional<QSizeF> size = sizeOf(pagePaper());
    if (!size)
        return std::nullopt;
    return QSizeF(std::round(size->width()), std::round(size->height()));
}

bool JobPaper::isWithinLimits(const QSizeF &size) const
{
    return m_ppd && isWithinCustomSizes(limitsOf(*m_ppd), size);
}
