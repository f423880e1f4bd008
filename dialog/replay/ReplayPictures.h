#pragma once

#include "dialog/files/OutputFile.h"

#include <QtCore/QDir>
#include <QtCore/QString>

class QImage;

/// The files that a script's pictures are written to. A script may come from anybody: its pictures
/// stand beside it, and lose nothing that was there before the run.
class ReplayPictures
{
public:
    explicit ReplayPictures(OutputTerms terms) : m_terms(std::move(terms)) {}

    /// No picture is written over the file that the path leads to.
    void addInput(const QString &path) { m_terms.addInput(path); }

    /// Writes the picture as a PNG of this name into the folder; a fault when that may not or
    /// cannot be. What this object has written may be written again.
    Result<> write(const QImage &picture, const QDir &folder, const QString &name);

private:
    OutputTerms m_terms;
};

/// Whether the name stays in the folder that it is looked up in: not empty, without '/', not
/// beginning with a dot, and text that every file system understands.
bool isPlainName(const QString &name);
