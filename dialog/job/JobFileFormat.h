#pragma once

#include <QtCore/QString>

/// A job in a file: settings and documents together, to be looked at and sent later.
///
/// The file begins with lines of text (UTF-8), then comes an empty line, then the bytes of the
/// documents one after the other:
///
///     Velkaro-Print-Job: 1
///     Title: Holiday.pdf
///     Queue: photo
///     Option: PageSize=A4.Fullbleed
///     Document: 48211 Holiday.pdf
///
/// `Queue` is missing where the job was made from a PPD file, the others may come again. A document
/// line holds the length in bytes and the name.

/// The first line, without its line break, and what it begins with in every version.
constexpr auto kJobFileFirstLine = "Velkaro-Print-Job: 1";
constexpr auto kJobFileBeginning = "Velkaro-Print-Job: ";

// Far above what a job of this program has; a header that reaches all of them has 900 KB.
constexpr qsizetype kMostJobFileDocuments = 1000;
constexpr qsizetype kMostJobFileOptions = 1000;
constexpr qint64 kLongestJobFileHeader = 1'048'576; // bytes, the empty line among them

/// The translated sentence about the file at the path (%1) and, where there is one, the reason
/// (%2).
QString jobFileSentence(const char *text, const QString &path, const QString &reason = QString());
