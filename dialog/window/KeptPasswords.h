#pragma once

#include "dialog/cups/Passwords.h"

#include <functional>
#include <optional>

/// The passwords that somebody wants to be kept in the desktop's keyring. On the main thread.

/// What is kept for the question, from the event loop; `hasKeyring`: there is one that could keep
/// something. A keyring that does not answer for some seconds is none.
void findKept(const PasswordQuestion &question,
              std::function<void(bool hasKeyring, std::optional<Credentials> kept)> then);

void keepInKeyring(const PasswordQuestion &question, const Credentials &right);

/// Who somebody is as one entry of a keyring, and back; none out of anything else. The entry's
/// memory is cleared, that of its copies too.
QByteArray entryOf(const Credentials &credentials);
std::optional<Credentials> credentialsOf(QByteArray entry);
