#pragma once

#include "dialog/files/FileDescriptor.h"
#include "dialog/work/Result.h"

#include <QtCore/QString>

#include <functional>
#include <memory>
#include <vector>

/// A document that is open for reading: what is sent or saved is what was opened, whatever happens
/// to the name meanwhile. Copies share the open file; any thread may read, each from where it
/// wants.
class Document
{
public:
    /// The document from byte `begin` of an ordinary file to its end. `path` and `name` are for
    /// people.
    Document(FileDescriptor file, qint64 begin, QString path, QString name);

    /// A pipe, whose bytes have still to be read (see readPipes()): it has no size.
    static Document pipe(FileDescriptor file, const QString &path, const QString &name);

    /// `size` bytes of this document as a document of its own. They must lie within it.
    Document part(qint64 begin, qint64 size, const QString &name) const;

    /// The file's name without its folder.
    const QString &name() const { return m_name; }

    /// What the user called it.
    const QString &path() const { return m_path; }

    bool isPipe() const { return m_size < 0; }

    /// Whether it is all of the open file.
    bool isWholeFile() const { return m_begin == 0 && m_size == m_file->size; }
    int descriptor() const { return m_file->descriptor.get(); }

    /// In bytes, as it was when the document was opened.
    qint64 size() const { return m_size; }

    /// Up to `most` bytes from byte `offset` on. The number of bytes, 0 at the end, -1 when they
    /// cannot be read (errno says why).
    qint64 read(qint64 offset, char *to, qint64 most) const;

    /// Whether the file is still as long as it was when it was opened.
    bool isUnchanged() const;

private:
    struct OpenFile
    {
        FileDescriptor descriptor;
        qint64 size; ///< of the whole file when it was opened
    };

    std::shared_ptr<const OpenFile> m_file;
    qint64 m_begin = 0;
    qint64 m_size = -1;
    QString m_path;
    QString m_name;

    Document(std::shared_ptr<const OpenFile> file, QString path, QString name);
};

using Documents = std::vector<Document>;

enum class Delivery {
    Complete,
    NotTaken,   ///< whoever took the bytes wanted no more
    Changed,    ///< the file has become shorter or longer
    CannotRead, ///< the system does not give its bytes
};

/// Hands the document's bytes over, a piece at a time, until `take` gives false.
Delivery deliver(const Document &document,
                 const std::function<bool(const char *bytes, qint64 length)> &take);

/// What is told of a document that has changed or cannot be read.
Fault deliveryFault(const Document &document, Delivery delivery);

/// The bytes of all documents together.
qint64 totalSize(const Documents &documents);

/// A fault for the first document that is not as long as it was when it was opened.
Result<> checkUnchanged(const Documents &documents);
