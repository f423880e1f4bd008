#pragma once

#include <QtCore/QString>

/// What stands at a path before something is written there.
enum class Standing {
    Nothing,
    File, ///< also a link that leads nowhere
    Folder,
    Stream, ///< a device, a pipe, or a file that is open already: whatever is written goes on there
};

struct OutputFacts
{
    Standing standing = Standing::Nothing;
    bool isInput = false;     ///< the run reads this very file, or has another output in it
    bool isOfThisRun = false; ///< the run has written the file that stands there
    bool mayReplace = false;  ///< the user has said so
};

enum class OutputVerdict {
    Create,  ///< under a name that must still be free when the file is whole
    Replace, ///< as a whole, when the new file is
    Append,  ///< written to as it is
    // Nothing is written:
    IsInput,
    IsFolder,
    Exists,
};

/// Whether a path may be written: never over an input, over another file only when the user says so
/// or when it is the run's own.
OutputVerdict verdictOn(const OutputFacts &facts);

/// One sentence that says why nothing is written to the path; null when something may be.
QString outputRefusal(OutputVerdict verdict, const QString &path);
