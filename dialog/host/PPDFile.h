#pragma once

#include <QtCore/QString>

#include <cups/ppd.h>

#include <memory>

struct PPDCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

/// An opened PPD and whoever owns it.
using PPDHandle = std::unique_ptr<ppd_file_t, PPDCloser>;

/// What opening a PPD came to: the PPD with its defaults marked, or one sentence for people.
struct OpenedPPD
{
    PPDHandle ppd;
    QString error;
};

/// In which language the PPD's texts are.
enum class PPDTexts {
    InUserLanguage, ///< where the PPD has the texts of the user's locale
    AsWritten,      ///< the same for everybody
};

/// Opens the PPD file and marks its defaults. PPDs come from strangers: a file that is no regular
/// file, larger than any printer's PPD, or not a PPD is refused before or by libcups' parser, and
/// one that ends too early after it.
OpenedPPD openPPD(const QString &path, PPDTexts texts = PPDTexts::AsWritten);
