#include "dialog/job/Document.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <numeric>
#include <sys/stat.h>

namespace {

constexpr qint64 kPiece = 65536; // bytes

qint64 sizeOf(const FileDescriptor &file)
{
    struct stat status = {};
    return fstat(file.get(), &status) == 0 ? status.st_size : -1;
}

} // namespace

Document::Document(std::shared_ptr<const OpenFile> file, QString path, QString name)
    : m_file(std::move(file)), m_path(std::move(path)), m_name(std::move(name))
{}

Document::Document(FileDescriptor file, qint64 begin, QString path, QString name)
    : m_begin(begin), m_path(std::move(path)), m_name(std::move(name))
{
    const qint64 size = sizeOf(file);
    m_file = std::make_shared<OpenFile>(OpenFile{std::move(file), size});
    m_size = std::max<qint64>(0, size - begin);
}

Document Document::pipe(FileDescriptor file, const QString &path, const QString &name)
{
    return {std::make_shared<OpenFile>(OpenFile{std::move(file), -1}), path, name};
}

Document Document::part(qint64 begin, qint64 size, const QString &name) const
{
    Document part(m_file, m_path, name);
    part.m_begin = m_begin + begin;
    part.m_size = size;
    return part;
}

qint64 Document::read(qint64 offset, char *to, qint64 most) const
{
    const auto wanted = static_cast<std::size_t>(std::clamp<qint64>(m_size - offset, 0, most));
    ssize_t got = -1;
    do
        got = pread(descriptor(), to, wanted, m_begin + offset);
    while (got < 0 && errno == EINTR);
    return got;
}

bool Document::isUnchanged() const
{
    return sizeOf(m_file->descriptor) == m_file->size;
}

Delivery deliver(const Document &document,
                 const std::function<bool(const char *bytes, qint64 length)> &take)
{
    std::array<char, kPiece> buffer{};
    qint64 given = 0;
    while (given < document.size()) {
        const qint64 got = document.read(given, buffer.data(), kPiece);
        if (got < 0)
            return Delivery::CannotRead;
        if (got == 0)
            return Delivery::Changed;
        if (!take(buffer.data(), got))
            return Delivery::NotTaken;
        given += got;
    }
    return document.isUnchanged() ? Delivery::Complete : Delivery::Changed;
}

Fault deliveryFault(const Document &document, Delivery delivery)
{
    const QString sentence =
        delivery == Delivery::Changed
            ? QCoreApplication::translate(
                  "Document", "The document %1 has become shorter or longer since it was opened.")
            : QCoreApplication::translate("Document", "The document %1 cannot be read to its end.");
    return {FaultKind::Document, sentence.arg(document.path())};
}

qint64 totalSize(const Documents &documents)
{
    return std::transform_reduce(documents.begin(), documents.end(), qint64{0}, std::plus(),
                                 [](const Document &document) { return document.size(); });
}

Result<> checkUnchanged(const Documents &documents)
{
    const auto changed = std::ranges::find_if_not(documents, &Document::isUnchanged);
    if (changed == documents.end())
        return {};
    return deliveryFault(*changed, Delivery::Changed);
}
