#pragma once

#include "tests/golden/Recording.h"

#include <QtCore/QMap>
#include <QtCore/QString>

/// How often what occurred. The names have a group in front: "do pick", "alert ...".
using Coverage = QMap<QString, int>;

/// What occurs in a case.
Coverage coverageOfCase(const QString &casePath, const Recording &recording);

/// Whether the name is one of thousands of combinations, which no page lists.
bool isFine(const QString &name);

void addCoverage(Coverage &to, const Coverage &more);

/// A page that people read: each group with its counts, and the controls and choices that were on
/// screen but never picked.
QString coverageText(const Coverage &coverage);
