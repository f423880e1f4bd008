#pragma once

#include <QtCore/QStringList>

struct PasswordQuestion;

/// What somebody is asked, one sentence each: that the last answer was wrong, which server wants to
/// know what for, and whether others may read the answer on its way.
QStringList sentencesOf(const PasswordQuestion &question);
