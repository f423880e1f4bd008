#include "dialog/window/DialogWindow.h"
#include "dialog/window/JobHeader.h"
#include "dialog/work/BackgroundCall.h"

#include <QtWidgets/QFileDialog>

void DialogWindow::takeDocuments(const OpenedDocuments &opened)
{
    m_documentError = opened.error;
    m_job.setDocuments(opened.documents);
}

/// What is written into a pipe may take its time: meanwhile everything can be settled but Print.
void DialogWindow::readPipedDocuments()
{
    delete m_reading;
    const Documents documents = m_job.documents();
    if (!hasPipes(documents))
        return;
    m_reading = new BackgroundCall(
        this, kFileTimeout,
        [this, documents](CallGuard &guard) -> BackgroundCall::Outcome {
            const ReadDocuments read = readPipes(documents, guard);
            return [this, read] { takeRead(read); };
        },
        nullptr);
}

void DialogWindow::takeRead(const ReadDocuments &read)
{
    takeDocuments({read.documents, read.answer.sentence});
    m_header->reload();
    if (m_state != State::Ready)
        return;
    m_standing = whatIsMissing();
    tellStanding();
}

void DialogWindow::chooseDocuments()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("Choose Documents"), QString(),
        tr("Documents (*.pdf *.ps *.txt *.png *.jpg *.jpeg);;All files (*)"));
    if (paths.isEmpty())
        return;
    const OpenedDocuments opened = openDocuments(paths);
    if (!opened.error.isNull()) {
        m_notice->tell(NoticeBar::Kind::Error, opened.error);
        return;
    }
    takeDocuments(opened);
    readPipedDocuments();
    m_header->reload();
    m_standing = whatIsMissing();
    tellStanding();
}
