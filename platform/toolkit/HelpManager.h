#pragma once

#include "platform/Export.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QUrl>

class QWidget;

/// The help books of the process, and the window that shows them.
///
/// A help book is a folder with an Info.json that names the book ("CFBundleHelpBookName") and its
/// first page ("HPDBookAccessPath"), and a folder of HTML pages for each language.
class VELKARO_PLATFORM_EXPORT HelpManager
{
public:
    /// The one of the process.
    static HelpManager &sharedHelpManager();

    /// Registers the book in the folder. False when there is no readable book.
    bool registerBook(const QString &path);

    /// Opens the book's first page, in the user's language (else English), at the anchor. False
    /// when the book is not registered or has no such page.
    bool openHelpAnchor(const QString &anchor, const QString &inBook);

    /// The page that openHelpAnchor() would show; empty when there is none.
    QUrl pageOf(const QString &anchor, const QString &book) const;

    /// The window that shows help; null when none is open.
    QWidget *window() const { return m_window; }

private:
    QHash<QString, QString> m_firstPages; // by book name, relative to a language's folder
    QHash<QString, QString> m_folders;    // by book name
    QPointer<QWidget> m_window;
};
