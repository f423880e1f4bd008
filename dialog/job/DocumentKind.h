#pragma once

#include "dialog/job/Document.h"

#include <QtCore/QList>

/// What a print server makes of a document, as its first bytes tell.
enum class DocumentKind {
    Pages,   ///< has pages of its own (PDF, PostScript)
    Picture, ///< is laid on a page
    Other,   ///< text, what nobody knows, and a pipe that has still to be read
};

/// Of each document, in order.
QList<DocumentKind> kindsOf(const Documents &documents);
