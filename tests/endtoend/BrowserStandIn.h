#pragma once

#include <QtCore/QList>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QTextBrowser>

/// Takes the pages that the desktop would open in a browser.
class BrowserStandIn : public QTextBrowser
{
public:
    BrowserStandIn() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "setSource"); }
    ~BrowserStandIn() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }

    const QList<QUrl> &pages() const { return m_pages; }

private:
    void doSetSource(const QUrl &page, QTextDocument::ResourceType) override { m_pages += page; }

    QList<QUrl> m_pages;
};
