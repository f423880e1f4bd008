#include "dialog/files/OutputFile.h"

#include "dialog/files/DescriptorPath.h"
#include "dialog/files/PathBytes.h"
#include "dialog/work/SystemReason.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kLookInterval = 100; // ms
constexpr int kNew = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
constexpr mode_t kEverybodysMode = 0666; // as far as the user's mask lets it
constexpr mode_t kPermissions = 07777;

Standing standingAt(const QString &path)
{
    struct stat status = {};
    const QByteArray bytes = bytesOfPath(path);
    if (descriptorOf(path))
        return Standing::Stream;
    if (stat(bytes.constData(), &status) != 0)
        return lstat(bytes.constData(), &status) == 0 ? Standing::File : Standing::Nothing;
    if (S_ISREG(status.st_mode))
        return Standing::File;
    return S_ISDIR(status.st_mode) ? Standing::Folder : Standing::Stream;
}

/// Where the file at the path really stands, its links followed; the path itself when they lead
/// nowhere.
QByteArray placeOf(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.constData(), nullptr),
                                                           std::free);
    return real ? QByteArray(real.get()) : path;
}

QByteArray temporaryBeside(const QByteArray &place)
{
    return place.left(place.lastIndexOf('/') + 1) + ".velkaro-print-" +
           QByteArray::number(QRandomGenerator::system()->generate64(), 16);
}

/// Renames where nothing stands yet. Some file systems can only link.
bool renameToFreeName(const QByteArray &from, const QByteArray &to)
{
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    return errno == EINVAL && link(from.constData(), to.constData()) == 0 &&
           unlink(from.constData()) == 0;
}

/// Brings what has been written to the disk. A pipe or a device has none.
bool synchronize(int descriptor)
{
    return fsync(descriptor) == 0 || errno == EINVAL || errno == EROFS;
}

// A pipe's reader that goes is a fault of writing, not the end of the program.
void blockPipeSignal()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

} // namespace

void OutputTerms::addInput(const QString &path)
{
    const auto identity = path == QLatin1String("-") ? identityOf(STDIN_FILENO) : identityOf(path);
    if (identity)
        inputs += *identity;
}

OutputVerdict verdictAt(const QString &path, const OutputTerms &terms)
{
    const std::optional<int> openFile = descriptorOf(path);
    const auto identity = openFile ? identityOf(*openFile) : identityOf(path);
    OutputFacts facts;
    facts.standing = standingAt(path);
    facts.isInput = identity && terms.inputs.contains(*identity);
    facts.isOfThisRun = identity && terms.written.contains(*identity);
    facts.mayReplace = terms.mayReplace;
    return verdictOn(facts);
}

OutputFile::~OutputFile()
{
    if (!m_temporary.isEmpty())
        unlink(m_temporary.constData());
    if (m_created && identityOf(m_path) == m_created)
        unlink(m_place.constData());
}

Result<> OutputFile::open(const QString &path, const OutputTerms &terms, Appears appears)
{
    m_path = path;
    m_terms = terms;
    m_verdict = verdictAt(path, terms);
    const QByteArray bytes = bytesOfPath(path);
    switch (m_verdict) {
    case OutputVerdict::Append:
        return openStream(bytes);
    case OutputVerdict::Create:
        return appears == Appears::AtOnce ? openNew(bytes) : openBeside(bytes);
    case OutputVerdict::Replace:
        return openBeside(placeOf(bytes));
    default:
        return refuse(m_verdict);
    }
}

Result<> OutputFile::openStream(const QByteArray &path)
{
    m_isStream = true;
    blockPipeSignal();
    if (const std::optional<int> openFile = descriptorOf(m_path))
        return take(fcntl(*openFile, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    // A named pipe would keep whoever opens it waiting for a reader.
    const int descriptor = ::open(path.constData(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0 && errno == ENXIO)
        return fail(QCoreApplication::translate("OutputFile", "nobody reads from it"));
    if (descriptor >= 0)
        fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
    return take(descriptor);
}

Result<> OutputFile::openNew(const QByteArray &path)
{
    m_place = path;
    const int descriptor = ::open(path.constData(), kNew, kEverybodysMode);
    if (descriptor < 0 && errno == EEXIST)
        return refuse(OutputVerdict::Exists);
    Result<> taken = take(descriptor);
    if (taken)
        m_created = identityOf(descriptor);
    return taken;
}

Result<> OutputFile::openBeside(const QByteArray &path)
{
    m_place = path;
    const QByteArray temporary = temporaryBeside(path);
    const int descriptor = ::open(temporary.constData(), kNew, kEverybodysMode);
    if (descriptor >= 0)
        m_temporary = temporary;
    struct stat old = {};
    if (descriptor >= 0 && stat(path.constData(), &old) == 0)
        fchmod(descriptor, old.st_mode & kPermissions);
    return take(descriptor);
}

Result<> OutputFile::take(int descriptor)
{
    m_file = FileDescriptor(descriptor);
    return m_file.isOpen() ? m_state : failForErrno();
}

/// Waits until the stream has room for PIPE_BUF bytes, which write() then hands over without
/// waiting. False when whoever may end the waiting does.
bool OutputFile::waitForRoom()
{
    pollfd waited{m_file.get(), POLLOUT, 0};
    while (!m_mayWait || m_mayWait())
        if (poll(&waited, 1, kLookInterval) > 0)
            return true;
    errno = ECANCELED;
    return false;
}

Result<> OutputFile::write(QByteArrayView bytes)
{
    // A disk that is nearly full takes a part first, and says only then why it takes no more.
    while (!bytes.isEmpty() && m_state) {
        if (m_isStream && !waitForRoom())
            return failForErrno();
        const qsizetype most = m_isStream ? PIPE_BUF : bytes.size();
        const ssize_t taken = ::write(m_file.get(), bytes.data(),
                                      static_cast<std::size_t>(std::min(bytes.size(), most)));
        if (taken >= 0)
            bytes = bytes.sliced(taken);
        else if (errno != EINTR)
            return failForErrno();
    }
    return m_state;
}

Result<> OutputFile::commit()
{
    if (!m_state)
        return m_state;
    if (!synchronize(m_file.get()))
        return failForErrno();
    const std::optional<FileIdentity> identity = identityOf(m_file.get());
    if (!m_file.shut())
        return failForErrno();
    if (!m_temporary.isEmpty() && !publish())
        return m_state;
    m_temporary.clear();
    m_created.reset();
    m_identity = identity;
    return m_state;
}

/// Puts the whole file in its place. What stands there may be another file by now.
Result<> OutputFile::publish()
{
    const OutputVerdict now = verdictAt(m_path, m_terms);
    if (now != OutputVerdict::Create && now != OutputVerdict::Replace)
        return refuse(now == OutputVerdict::Append ? OutputVerdict::Exists : now);
    const bool isDone = m_verdict == OutputVerdict::Replace
                            ? rename(m_temporary.constData(), m_place.constData()) == 0
                            : renameToFreeName(m_temporary, m_place);
    if (!isDone && errno == EEXIST)
        return refuse(OutputVerdict::Exists);
    return isDone ? m_state : failForErrno();
}

Result<> OutputFile::refuse(OutputVerdict verdict)
{
    m_verdict = verdict;
    m_state = Fault{FaultKind::Output, outputRefusal(verdict, m_path)};
    return m_state;
}

Result<> OutputFile::fail(const QString &reason)
{
    m_state = Fault{FaultKind::Output,
                    QCoreApplication::translate("OutputFile", "The file %1 cannot be written: %2.")
                        .arg(shownPath(m_path), reason)};
    return m_state;
}

Result<> OutputFile::failForErrno()
{
    return fail(systemReason(errno));
}
