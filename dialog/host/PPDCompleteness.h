#pragma once

#include <QtCore/QByteArrayView>

/// Whether the text of a PPD ends in the midst of something: in a quoted value, in a keyword, or
/// between the opening and the closing line of an option or a group. libcups takes such a PPD for a
/// whole one and loses the rest of the options without a word. A cut between two complete options
/// cannot be seen.
bool isCutOff(QByteArrayView ppd);
