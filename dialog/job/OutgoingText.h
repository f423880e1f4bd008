#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// The longest text that a server is sent, in bytes of UTF-8: an IPP name.
constexpr qsizetype kLongestOutgoingText = 255;

/// A text for people as it leaves the program, for a server, its filters or a job's file: the title
/// of a job, the name of a document or of a user. One line of valid UTF-8 without control
/// characters or any that turn the direction of writing, no longer than kLongestOutgoingText and
/// cut between characters as people see them. `neutral` stands in for a text that has nothing left.
QByteArray outgoingText(const QString &text, const char *neutral);

/// The title of a job.
QByteArray outgoingTitle(const QString &title);

/// The name of a document, without its folders.
QByteArray outgoingDocumentName(const QString &name);
