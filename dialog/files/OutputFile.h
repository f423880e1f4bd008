#pragma once

#include "dialog/files/FileDescriptor.h"
#include "dialog/files/FileIdentity.h"
#include "dialog/files/OutputRule.h"
#include "dialog/work/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

/// On what terms a run writes its files.
struct OutputTerms
{
    QList<FileIdentity> inputs;  ///< nothing is ever written over these
    QList<FileIdentity> written; ///< what the run has written may be written again
    bool mayReplace = false;     ///< the user has said that other files may be replaced

    /// Adds what the path leads to, if it is there; "-" is standard input.
    void addInput(const QString &path);
};

/// What would become of the path if it were written now.
OutputVerdict verdictAt(const QString &path, const OutputTerms &terms);

/// A file that is being written, whole or not at all: what stood at its path stays until commit(),
/// and for good when that fails or is not reached.
///
/// The order of calls: open(), write(), commit(). Paths are as pathOfBytes() gives them;
/// "/dev/stdout", "/dev/stderr", "/dev/fd/N" and "/proc/self/fd/N" are files that are open already.
class OutputFile
{
public:
    enum class Appears {
        WhenWhole, ///< at commit()
        AtOnce,    ///< at open(), unless it replaces another file; removed when it is not committed
    };

    OutputFile() = default;
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Is asked again and again while a pipe or a device takes no bytes; false ends the writing.
    /// Without it write() waits for as long as that lasts.
    void setMayWait(std::function<bool()> mayWait) { m_mayWait = std::move(mayWait); }

    /// A fault when nothing may or can be written there. Waits for nothing. A thread that opens a
    /// pipe or a device gets no SIGPIPE any more.
    Result<> open(const QString &path, const OutputTerms &terms,
                  Appears appears = Appears::WhenWhole);

    /// Writes all bytes at once, without a buffer. After a fault, which every later call gives
    /// again, the file can not be committed any more.
    Result<> write(QByteArrayView bytes);

    /// Ends the file. A fault when not everything has reached its place.
    Result<> commit();

    /// Why open() has written nothing, if it has not. Create otherwise.
    OutputVerdict verdict() const { return m_verdict; }

    /// Which file it has become; none before commit(), and for a device or a pipe.
    std::optional<FileIdentity> identity() const { return m_identity; }

private:
    Result<> openStream(const QByteArray &path);
    Result<> openNew(const QByteArray &path);
    Result<> openBeside(const QByteArray &path);
    Result<> take(int descriptor);
    bool waitForRoom();
    Result<> publish();
    Result<> refuse(OutputVerdict verdict);
    Result<> fail(const QString &reason);
    Result<> failForErrno();

    std::function<bool()> m_mayWait;
    bool m_isStream = false;
    QString m_path;
    OutputTerms m_terms;
    OutputVerdict m_verdict = OutputVerdict::Create;
    FileDescriptor m_file;
    QByteArray m_place;     // where it belongs
    QByteArray m_temporary; // where it is until then; empty: it stands there, or is a stream
    std::optional<FileIdentity> m_created; // this file in its place, to be removed on failure
    std::optional<FileIdentity> m_identity;
    Result<> m_state; // the first fault
};
