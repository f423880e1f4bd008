#pragma once

#include "dialog/files/FileDescriptor.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/work/Result.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QString>

#include <memory>

struct PPDCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

/// An opened PPD and whoever owns it.
using PPDHandle = std::unique_ptr<ppd_file_t, PPDCloser>;

/// A PPD with its defaults marked.
struct OpenedPPD
{
    PPDHandle ppd;
    /// What is marked by default, before anybody has picked anything. It need not be what an option
    /// says of itself: a keyword may stand in two groups, and libcups reads over the case of names.
    QList<PPDMark> defaults;
    /// The text that was checked and opened, in a file of memory: whoever opens it once more gets
    /// the same, whatever stands at the path by then.
    std::shared_ptr<const FileDescriptor> text;
};

/// In which language the PPD's texts are.
enum class PPDTexts {
    InUserLanguage, ///< where the PPD has the texts of the user's locale
    AsWritten,      ///< the same for everybody
};

/// Reads and checks the PPD file (readPPD), has libcups open what was read, and marks the defaults.
/// On any thread: the PPD may be handed on to another one.
Result<OpenedPPD> openPPD(const QString &path, PPDTexts texts = PPDTexts::AsWritten);

/// Whether the texts of two PPDs (OpenedPPD::text) are the same.
bool isSameText(const FileDescriptor &one, const FileDescriptor &other);

/// Opens a PPD's text (OpenedPPD::text) once more. On any thread.
Result<OpenedPPD> reopenPPD(const std::shared_ptr<const FileDescriptor> &text, PPDTexts texts);
