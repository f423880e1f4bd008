#include "dialog/job/DocumentPatterns.h"
#include "dialog/job/PipeDocuments.h"
#include "dialog/window/DialogTabs.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/FirstSight.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/PageSetupPane.h"

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QFileDialog>

#include <algorithm>

namespace {

/// The files that are dragged; none when anything else is among them.
QStringList filesOf(const QMimeData &dragged)
{
    const QList<QUrl> urls = dragged.urls();
    if (!std::ranges::all_of(urls, &QUrl::isLocalFile))
        return {};
    QStringList paths;
    for (const QUrl &url : urls)
        paths += url.toLocalFile();
    return paths;
}

} // namespace

/// What is written into a pipe may take its time: meanwhile everything can be settled but Print.
void DialogWindow::readPipes()
{
    if (!hasPipes(job().documents())) {
        QTimer::singleShot(kFirstSight, this, &DialogWindow::countPages);
        return;
    }
    m_controller.readPipes([this](const Result<> &read) {
        m_documentState = read;
        takeDocuments();
        countPages();
    });
}

/// Meanwhile, and where it cannot be known, any pages may be typed.
void DialogWindow::countPages()
{
    m_controller.countPages([this](const PageCount &count) {
        m_pageCount = count;
        m_header->setPageCount(count);
        updateButtons();
    });
}

void DialogWindow::chooseDocuments()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("Choose Documents"), QString(),
        tr("Documents (%1);;All files (*)").arg(documentPatterns().join(u' ')));
    if (!paths.isEmpty())
        openDocuments(paths);
}

void DialogWindow::openDocuments(const QStringList &paths)
{
    const Result<> opened = m_controller.openDocuments(paths);
    if (!opened) {
        tell(NoticeBar::Kind::Error, opened.sentence());
        return;
    }
    m_documentState = opened;
    readPipes();
    takeDocuments();
}

/// Shows the job's documents. A saved job brings its own printer, and other parts.
void DialogWindow::takeDocuments()
{
    const bool hadSavedJob = m_savedJob.has_value();
    takeSavedJob();
    m_header->reload();
    m_tabs->pageSetup()->refresh();
    if (m_savedJob || hadSavedJob) {
        closePrinter();
        findPrinter(m_savedJob ? firstPrinter() : job().source());
    } else if (m_state == State::Ready) {
        m_standing = standing();
        tellStanding();
    }
}

void DialogWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const bool isTaken = m_header->isEnabled() && !filesOf(*event->mimeData()).isEmpty();
    event->setAccepted(isTaken);
}

void DialogWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    openDocuments(filesOf(*event->mimeData()));
}
