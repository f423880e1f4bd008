#pragma once

#include <QtCore/QString>

/// The system's words for an error number, such as "No such file or directory": in the language of
/// the environment's variables, whatever locale the process has.
QString systemReason(int error);
