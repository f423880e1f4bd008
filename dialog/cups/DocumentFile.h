#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

using DocumentFiles = std::vector<std::unique_ptr<QFile>>;

/// Documents that are open for reading, or one sentence that says which cannot be read.
struct OpenedDocuments
{
    DocumentFiles files;
    QString error; ///< null when there is none
};

/// Opens every document, so that a missing one is found out before anything is sent. Folders and
/// empty files are no documents.
OpenedDocuments openDocuments(const QStringList &paths);

/// The title of a job that prints these documents: the first one's name.
QString jobTitle(const QStringList &paths);
