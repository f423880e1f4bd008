#include "dialog/job/PipeDocuments.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/JobHeader.h"

#include <QtWidgets/QFileDialog>

/// What is written into a pipe may take its time: meanwhile everything can be settled but Print.
void DialogWindow::readPipes()
{
    if (!hasPipes(job().documents())) {
        countPages();
        return;
    }
    m_controller.readPipes([this](const Result<> &read) {
        m_documentState = read;
        m_header->reload();
        countPages();
        if (m_state != State::Ready)
            return;
        m_standing = standing();
        tellStanding();
    });
}

/// Meanwhile, and where it cannot be known, any pages may be typed.
void DialogWindow::countPages()
{
    m_controller.countPages([this](const PageCount &count) {
        m_header->setPageCount(count);
        updateButtons();
    });
}

void DialogWindow::chooseDocuments()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("Choose Documents"), QString(),
        tr("Documents (*.pdf *.ps *.txt *.png *.jpg *.jpeg);;All files (*)"));
    if (paths.isEmpty())
        return;
    const Result<> opened = m_controller.openDocuments(paths);
    if (!opened) {
        tell(NoticeBar::Kind::Error, opened.sentence());
        return;
    }
    m_documentState = opened;
    readPipes();
    m_header->reload();
    m_standing = standing();
    tellStanding();
}
