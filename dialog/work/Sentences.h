#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The text as a sentence: with a full stop, unless it ends like a sentence in any of the program's
/// languages. The text, such as one of a server's, is not empty.
QString endedLikeASentence(const QString &text);

/// Whole sentences one after the other, as people write them: full-width ones without a space.
QString joinedSentences(const QStringList &sentences);
