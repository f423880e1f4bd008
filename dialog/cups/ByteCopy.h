#pragma once

#include <QtCore/QIODevice>

/// Writes all bytes. A disk that is nearly full takes a part first, and says only then why it takes
/// no more.
bool writeAll(QIODevice &to, const char *bytes, qint64 length);

enum class Copied { All, CannotRead, CannotWrite };

/// Copies `length` bytes from where `from` stands. An input that ends before cannot be read.
Copied copyBytes(QIODevice &from, QIODevice &to, qint64 length);
