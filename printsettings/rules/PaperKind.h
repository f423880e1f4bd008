#pragma once

#include <QtCore/QString>

/// What kind of paper a paper's name stands for. A name can be of several kinds; a null name is of
/// none. Comparisons are case-sensitive.

/// A printable disc of 120 mm.
bool isDiscPaper(const QString &paperName);
/// A paper that is printed up to its edges.
bool isBorderlessPaper(const QString &paperName);
bool isEnvelopePaper(const QString &paperName);
/// A size that the user entered.
bool isCustomPaper(const QString &paperName);
