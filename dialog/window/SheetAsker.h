#pragma once

#include "dialog/cups/Passwords.h"

#include <memory>

class QWidget;

/// Asks for passwords in sheets of the window, whose event loop goes on meanwhile. Once the window
/// has gone nobody answers. Made on the main thread.
std::shared_ptr<PasswordAsker> newSheetAsker(QWidget &window);
