#pragma once

#include "dialog/cups/Passwords.h"

#include <memory>
#include <optional>

/// Reads the password from the descriptor, up to the end of its first line, when it is wanted
/// first. It is the only one: a wrong one is not asked for again.
std::shared_ptr<PasswordAsker> newPasswordReader(int descriptor);

/// Asks on the terminal that the program was started from, which shows no password. Nobody answers
/// where there is none.
std::shared_ptr<PasswordAsker> newPasswordPrompt();
