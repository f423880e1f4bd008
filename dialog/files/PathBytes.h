#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Paths of the command line. A file's name is bytes, mostly but not always UTF-8, and the
/// toolkit's own decoding loses those that are not.

/// The path as text that keeps every byte: of a path that is not UTF-8, each byte outside ASCII is
/// a surrogate on its own (U+DC00 and the byte). Such a text is no valid UTF-16; nothing but
/// bytesOfPath() and shownPath() can use it.
QString pathOfBytes(const QByteArray &bytes);

/// The bytes that the system knows the file by.
QByteArray bytesOfPath(const QString &path);

/// The path for people: plain text, with a sign in place of what is not UTF-8; standard output in
/// words.
QString shownPath(const QString &path);
