#pragma once

/// What velkaro-print's exit status says. Scripts rely on the numbers: they are never given a new
/// meaning. The help text and README list them.
enum class ExitStatus {
    Done = 0,      ///< the job was accepted, the file written, the PPD checked, or the script run
    Cancelled = 1, ///< the user closed the dialog, or a signal came before the server had the job
    Usage = 2,     ///< a wrong option, setting or script, a bad PPD, or no display for the dialog
    Vetoed = 3,    ///< a check before printing stopped the job
    Document = 4,  ///< a document cannot be read
    Output = 5,    ///< the output file, picture or recording cannot be written, or exists already
    Server = 6,    ///< the server or the queue cannot be reached, the job was refused, or its fate
                   ///< is not known
    PlugIn = 7,    ///< the plug-in cannot be used, or cannot check a PPD
    Waiting = 8,   ///< with --wait and --timeout: the job was stopped or held for too long
};

constexpr int exitCode(ExitStatus status)
{
    return static_cast<int>(status);
}
