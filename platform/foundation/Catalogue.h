#pragma once

#include "platform/Export.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>

class QTranslator;

/// Whether the text of a compiled catalogue (.qm) is as the compiler of catalogues writes it. A
/// QTranslator believes what it reads: it looks up beyond the end of one that is damaged. One that
/// loads further catalogues is refused too, since nobody has looked at those.
VELKARO_PLATFORM_EXPORT bool isSoundCatalogue(const QByteArray &catalogue);

/// A translator that looks up in the catalogue of the file, as it is now; null when the file cannot
/// be read, is damaged, or larger than any catalogue (4 MiB).
VELKARO_PLATFORM_EXPORT std::unique_ptr<QTranslator> openCatalogue(const QString &path);
