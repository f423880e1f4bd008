#pragma once

#include "platform/Export.h"
#include "platform/printmanager/PMPrintSettings.h"

#include <QtCore/QString>

#include <optional>

/// A sheet of paper. Sizes are in points.
struct PMPaper
{
    /// The paper's name in the form of the PPD, such as "A4"; null when it has none.
    QString name;
    /// The choice of `PageSize` that the paper stands for; null for a size that the user defined.
    QString ppdName;
    double width = 0;  ///< of the upright sheet
    double height = 0; ///< of the upright sheet
};

enum class PMOrientation { Portrait, Landscape };

/// The page format of a job: the paper and how the page lies on it.
struct PMPageFormat
{
    std::optional<PMPaper> paper;                        ///< none before one is known
    PMOrientation orientation = PMOrientation::Portrait; ///< of the page on the upright sheet
};

/// The format's paper, owned by the format. Without a format or a paper kPMInvalidParameter, and
/// `paper` is set to null.
VELKARO_PLATFORM_EXPORT OSStatus PMGetPageFormatPaper(const PMPageFormat *format,
                                                      const PMPaper **paper);

/// The paper's name; kPMInvalidParameter without a paper, kPMKeyNotFound when it has no name.
VELKARO_PLATFORM_EXPORT OSStatus PMPaperGetName(const PMPaper *paper, QString *name);

/// The paper's `PageSize` choice; kPMKeyNotFound for a size that the user defined.
VELKARO_PLATFORM_EXPORT OSStatus PMPaperGetPPDPaperName(const PMPaper *paper, QString *name);

/// The paper's width and height in points; kPMInvalidParameter without a paper.
VELKARO_PLATFORM_EXPORT OSStatus PMPaperGetWidth(const PMPaper *paper, double *width);
VELKARO_PLATFORM_EXPORT OSStatus PMPaperGetHeight(const PMPaper *paper, double *height);
