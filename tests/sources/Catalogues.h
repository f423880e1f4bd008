#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What is wrong with the catalogue of the sentences in the sources of the folders, one per line:
/// "CONTEXT: SENTENCE: is not translated" for one that it lacks or has unfinished, "...: is said
/// nowhere" for one that the sources do not have, "...: has other places or mnemonics" where %1, %2
/// or "&" are not as in English, "...: ends otherwise" where one is a sentence, a question or a
/// label and the other is not. Both paths are absolute. The catalogue is not
/// changed.
QStringList catalogueFaults(const QString &catalogue, const QStringList &folders);

/// What is wrong with a bundle's string table beside the English one: other keys, or another order,
/// no text, another form than the English text's.
QStringList tableFaults(const QString &reference, const QString &table);

/// The keys of a bundle's string table that stand in the catalogue with a text.
QStringList translatedKeys(const QString &catalogue);

/// The keys that a panel's source looks up by `localized("KEY")`.
QStringList keysLookedUp(const QString &source);
