#include "dialog/host/HostSession.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/window/DialogTabs.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/FeaturesPane.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/KeptView.h"
#include "dialog/window/LayoutPane.h"
#include "dialog/window/Mnemonics.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/PresetActions.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/window/SummaryPart.h"
#include "dialog/work/Sentences.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLineEdit>

using namespace Qt::StringLiterals;

/// Fields for text take the same keys for what was typed into them.
void DialogWindow::connectUndo()
{
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this,
            &DialogWindow::undo);
    connect(new QShortcut(QKeySequence::Redo, this), &QShortcut::activated, this,
            &DialogWindow::redo);
    connect(m_undo.get(), &SessionUndo::acted, &m_events, [this] { m_events.note(); });
    connect(m_header, &JobHeader::changed, this, &DialogWindow::noteSettled);
    connect(m_tabs->pageSetup(), &PageSetupPane::changed, this, &DialogWindow::noteSettled);
    connect(m_tabs->features(), &FeaturesPane::changed, this, &DialogWindow::noteSettled);
    connect(m_tabs->layoutPane(), &LayoutPane::changed, this, &DialogWindow::noteSettled);
}

/// Something of the dialog's own was settled.
void DialogWindow::noteSettled()
{
    const auto *field = qobject_cast<const QLineEdit *>(focusWidget());
    const auto *number = qobject_cast<const QAbstractSpinBox *>(focusWidget());
    m_undo->setField(field || number ? focusWidget()->objectName() : QString());
    m_undo->noteUser(m_events.picked(), ::settingState(job()));
}

NoticeOffer DialogWindow::undoOffer()
{
    return {u"undoButton"_s, tr("Undo"), [this] { undo(); }};
}

void DialogWindow::undo()
{
    tellEvent(); // what was before
    if (m_state == State::Ready && !m_savedJob && m_undo->canUndo())
        goBackOrOn(&SessionUndo::undo, tr("Undone."),
                   {u"redoButton"_s, tr("Redo"), [this] { redo(); }});
}

void DialogWindow::redo()
{
    tellEvent();
    if (m_state == State::Ready && !m_savedJob && m_undo->canRedo())
        goBackOrOn(&SessionUndo::redo, tr("Done again."), undoOffer());
}

void DialogWindow::goBackOrOn(Result<> (SessionUndo::*way)(), const QString &words,
                              const NoticeOffer &offer)
{
    const QList<PPDMark> before = m_events.state().marks;
    const Result<> gone = exchangeSession(way);
    m_events.forget(); // it was nobody's
    const Notice doubts = doubtsToTell(m_events.state());
    m_undo->noteOwn(m_events.state());
    updateButtons();
    if (!gone) {
        tell(NoticeBar::Kind::Error, gone.sentence());
        return;
    }
    const ChoiceForms forms = job().session() ? job().session()->choiceForms() : ChoiceForms();
    QStringList told{
        words, changeSentence(job().ppd(), changesBetween(before, m_events.state().marks, forms)),
        doubts.sentence};
    told.removeAll(QString());
    tell(doubts.kind, joinedSentences(told), doubts.offers + QList{offer});
}

/// Goes the way to another state out of sight, and shows that.
Result<> DialogWindow::exchangeSession(Result<> (SessionUndo::*way)())
{
    KeptView view(*this, *m_tabs, job());
    m_tabs->releaseViews();
    Result<> gone = ((*m_undo).*way)();
    if (job().session()) {
        m_tabs->exchangePanels(m_undo->shownPanel());
        view.unfold(*job().session());
    }
    showSettled();
    return gone;
}

/// What the dialog's own parts show of the job.
void DialogWindow::showSettled()
{
    showName();
    m_header->reload();
    m_presets->show(m_state == State::Ready);
    m_tabs->pageSetup()->reload();
    m_tabs->layoutPane()->reload();
    QWidget *part = m_tabs->currentWidget();
    if (part == m_tabs->features())
        m_tabs->features()->reload();
    if (part == m_tabs->summary())
        m_tabs->summary()->setSections(summarySections());
    if (!m_tabs->currentPart()->panel)
        settleMnemonics(*part, mnemonicsIn(*this));
    moveButtonsLast();
}
