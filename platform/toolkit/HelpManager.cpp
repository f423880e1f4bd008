#include "platform/toolkit/HelpManager.h"

#include "platform/foundation/PreferredLanguages.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QTextBrowser>

namespace {

constexpr QSize kWindowSize(620, 640);

// Shows pages of the book alone: a link elsewhere is not followed.
class HelpWindow : public QTextBrowser
{
public:
    explicit HelpWindow(QWidget *parent) : QTextBrowser(parent)
    {
        setWindowFlag(Qt::Window);
        setAttribute(Qt::WA_DeleteOnClose);
        resize(kWindowSize);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->matches(QKeySequence::Cancel))
            close();
        else
            QTextBrowser::keyPressEvent(event);
    }

    void doSetSource(const QUrl &url, QTextDocument::ResourceType type) override
    {
        if (url.isRelative() || url.isLocalFile())
            QTextBrowser::doSetSource(url, type);
    }
};

} // namespace

HelpManager &HelpManager::sharedHelpManager()
{
    static HelpManager manager;
    return manager;
}

bool HelpManager::registerBook(const QString &path)
{
    QFile file(path + QStringLiteral("/Info.json"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QJsonObject info = QJsonDocument::fromJson(file.readAll()).object();
    const QString name = info.value(QStringLiteral("CFBundleHelpBookName")).toString();
    const QString page = info.value(QStringLiteral("HPDBookAccessPath")).toString();
    if (name.isEmpty() || page.isEmpty())
        return false;
    m_folders.insert(name, path);
    m_firstPages.insert(name, page);
    return true;
}

QUrl HelpManager::pageOf(const QString &anchor, const QString &book) const
{
    if (!m_folders.contains(book))
        return {};
    QStringList languages;
    for (const QString &language : preferredLanguages())
        languages << language << language.section(u'-', 0, 0);
    languages << QStringLiteral("en");
    for (const QString &language : std::as_const(languages)) {
        const QString path = m_folders[book] + u'/' + language + u'/' + m_firstPages[book];
        if (!QFile::exists(path))
            continue;
        QUrl url = QUrl::fromLocalFile(path);
        url.setFragment(anchor);
        return url;
    }
    return {};
}

bool HelpManager::openHelpAnchor(const QString &anchor, const QString &inBook)
{
    const QUrl page = pageOf(anchor, inBook);
    if (page.isEmpty())
        return false;
    if (!m_window)
        m_window = new HelpWindow(keyWindow());
    auto *browser = static_cast<QTextBrowser *>(m_window.data());
    browser->setSource(page);
    // The name of the book is in one language only.
    const QString title = browser->documentTitle();
    browser->setWindowTitle(title.isEmpty() ? inBook : title);
    browser->show();
    browser->raise();
    browser->activateWindow();
    return true;
}
