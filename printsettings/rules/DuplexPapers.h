#pragma once

#include <QtCore/QString>

/// Whether the printer can turn over the paper of this name. Exact and case-sensitive; a null name
/// is no such paper.
bool isDuplexPaper(const QString &paperName);
