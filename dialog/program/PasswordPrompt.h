#pragma once

#include "dialog/cups/Passwords.h"
#include "dialog/work/Result.h"

#include <QtCore/QStringList>

#include <memory>
#include <optional>

/// Reads the password from the descriptor, up to the end of its first line, when it is wanted
/// first. It is the only one: a wrong one is not asked for again. A line of more than a kilobyte is
/// none.
std::shared_ptr<PasswordAsker> newPasswordReader(int descriptor);

/// A fault of kind Request when no password can be read from the descriptor, or a document is.
Result<> checkPasswordDescriptor(int descriptor, const QStringList &documents);

/// Asks on the terminal that the program was started from, which shows no password. Nobody answers
/// where there is none.
std::shared_ptr<PasswordAsker> newPasswordPrompt();
