#include "dialog/window/JobWindow.h"

#include "dialog/window/FlowLayout.h"
#include "dialog/window/Mnemonics.h"
#include "dialog/window/OpenQueue.h"
#include "dialog/window/SentenceLabel.h"
#include "dialog/window/SheetAsker.h"
#include "dialog/window/SheetLayout.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/AccessibleRole.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSentenceLines = 3; // have their room from the start

} // namespace

JobWindow::JobWindow(const QString &server, JobName job, QWidget *parent)
    : QDialog(parent),
      m_job(std::move(job)),
      m_sentence(new SentenceLabel(this)),
      m_progress(new QProgressBar(this)),
      m_buttons(new QWidget(this)),
      m_follower({server, m_job.queue, m_job.id},
                 {[this](const JobStatus &status) { take(status); },
                  [this](const QString &sentence) { tell(sentence); },
                  [this](const QString &sentence) { tell(sentence); }})
{
    setObjectName(u"jobWindow"_s);
    setWindowTitle(displayText(tr("Job %1 on %2").arg(QString::number(m_job.id), m_job.queue)));
    giveAccessibleRole("JobWindow", QAccessible::Dialog);
    m_sentence->setObjectName(u"jobSentence"_s);
    m_sentence->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    m_sentence->setMinimumHeight(kSentenceLines * fontMetrics().lineSpacing());
    m_progress->setObjectName(u"jobProgress"_s);
    giveAccessibleName(m_progress, tr("Pages"));
    m_buttons->setLayout(new FlowLayout);
    addAction(JobAction::Hold, u"holdButton"_s, tr("Hold"));
    addAction(JobAction::Release, u"releaseButton"_s, tr("Release"));
    addAction(JobAction::Restart, u"restartButton"_s, tr("Print Again"));
    addAction(JobAction::Authenticate, u"authenticateButton"_s, tr("Enter Password…"));
    addAction(JobAction::Cancel, u"cancelJobButton"_s, tr("Cancel Job"));
    QPushButton *queue = addButton(u"openQueueButton"_s, tr("Open Queue"));
    queue->setAutoDefault(false);
    connect(queue, &QPushButton::clicked, this,
            [this] { openQueue(m_follower.job().server, m_follower.job().queue); });
    QPushButton *close = addButton(u"closeButton"_s, tr("Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_sentence, 1);
    layout->addWidget(m_progress);
    showActions(widestPhase());
    layOutSheet(*this, content, m_buttons);
    take({});
    setPasswordAsker(newSheetAsker(*this));
    m_follower.start();
}

QPushButton *JobWindow::addButton(const QString &name, const QString &title)
{
    auto *button = new QPushButton(m_buttons);
    button->setObjectName(name);
    setTitleWithMnemonic(*button, title);
    m_buttons->layout()->addWidget(button);
    return button;
}

void JobWindow::addAction(JobAction action, const QString &name, const QString &title)
{
    QPushButton *button = addButton(name, title);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, action] { m_follower.perform(action); });
    m_actions[action] = button;
}

void JobWindow::take(const JobStatus &status)
{
    tell(sentenceOf(m_job, status));
    showProgress(status);
    showActions(status.phase);
}

void JobWindow::showActions(JobPhase phase)
{
    for (const auto &[action, button] : m_actions)
        button->setVisible(isOffered(action, phase));
}

/// The one with the most room for buttons: they stay in one line whatever becomes of the job.
JobPhase JobWindow::widestPhase()
{
    JobPhase widest = JobPhase::Waiting;
    int most = 0;
    for (const JobPhase phase : kJobPhases) {
        showActions(phase);
        const int width = m_buttons->layout()->sizeHint().width();
        if (width > std::exchange(most, std::max(most, width)))
            widest = phase;
    }
    return widest;
}

void JobWindow::tell(const QString &sentence)
{
    setLabelText(m_sentence, displayText(sentence));
    giveAccessibleName(this, displayText(sentence));
    announce(this);
}

/// A job whose pages are not known shows that something goes on. The bar keeps its room.
void JobWindow::showProgress(const JobStatus &status)
{
    const bool isPrinting = status.phase == JobPhase::Printing || status.phase == JobPhase::Waiting;
    const bool isDone = status.phase == JobPhase::Finished;
    m_progress->setRange(0, isPrinting ? m_job.pages : std::max(1, m_job.pages));
    m_progress->setValue(isDone ? m_progress->maximum() : std::min(status.sheets, m_job.pages));
    m_progress->setEnabled(!isEnd(status.phase));
}

bool JobWindow::isAtEnd() const
{
    return m_follower.status() && isEnd(m_follower.status()->phase);
}

QString JobWindow::sentence() const
{
    return m_sentence->text();
}
