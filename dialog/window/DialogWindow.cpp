#include "dialog/window/DialogWindow.h"

#include "dialog/job/PipeDocuments.h"
#include "dialog/window/ButtonRow.h"
#include "dialog/window/DialogTabs.h"
#include "dialog/window/DimmedText.h"
#include "dialog/window/FeaturesPane.h"
#include "dialog/window/HostHelp.h"
#include "dialog/window/JobHeader.h"
#include "dialog/window/LayoutPane.h"
#include "dialog/window/Mnemonics.h"
#include "dialog/window/PageSetupPane.h"
#include "dialog/window/PresetActions.h"
#include "dialog/window/PrinterPopUp.h"
#include "dialog/window/ProgressStrip.h"
#include "dialog/window/ScrolledBody.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/window/SheetAsker.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PanelPoint.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtGui/QShortcut>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kFirstSize(640, 632); // room for every part, and a long notice
constexpr int kWindowMargin = 12;
constexpr int kNoticeShare = 4; // a long notice may take one part in so many of the height

QPushButton *newButton(const QString &name, const QString &title, QWidget *parent)
{
    auto *button = new QPushButton(title, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

} // namespace

DialogWindow::DialogWindow(const DialogWishes &wishes, QWidget *parent)
    : QDialog(parent),
      m_wishes(wishes),
      m_controller(wishes),
      m_undo(std::make_unique<SessionUndo>(m_controller)),
      m_events(m_controller),
      m_documentState(m_controller.openDocuments(wishes.files)),
      m_outcome(Fault{FaultKind::Cancelled, {}}),
      m_watch(m_controller, *this)
{
    setObjectName(u"dialogWindow"_s);
    setAcceptDrops(true);
    takeSavedJob();
    setWindowTitle(tr("Print"));
    setPixelsPerPoint(pixelsPerPoint(fontMetrics().height()));
    keepDimmedTextReadable(*this);
    buildLayout();
    resize(kFirstSize);
    setState(State::Searching);
}

DialogWindow::~DialogWindow()
{
    closePrinter();
}

void DialogWindow::buildLayout()
{
    m_header = new JobHeader(job(), this);
    m_notice = new NoticeBar(this);
    m_progress = new ProgressStrip(this);
    m_tabs = new DialogTabs(job(), this);
    m_head = new ScrolledBody(this);
    m_head->setObjectName(u"head"_s);
    m_head->setContent(m_header);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kWindowMargin, kWindowMargin, kWindowMargin, kWindowMargin);
    layout->setSpacing(kWindowMargin);
    m_buttons = newButtons();
    // A longer notice takes its room from below the tabs: nothing moves under the pointer.
    layout->addWidget(m_head);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(m_notice);
    layout->addWidget(m_buttons);
    buildTabs();
    addPartShortcut(QKeySequence::NextChild, 1);
    addPartShortcut(QKeySequence::PreviousChild, -1);
    connect(m_tabs, &QTabWidget::currentChanged, this, &DialogWindow::changePart);
    const auto followSoon = [this] { QTimer::singleShot(0, this, &DialogWindow::followView); };
    connect(m_tabs, &DialogTabs::viewResized, this, followSoon);
    connect(&m_events, &EventWatch::viewResized, this, followSoon);
    connect(&m_events, &EventWatch::over, this, &DialogWindow::tellEvent);
    connect(&m_events, &EventWatch::failed, this,
            [this](const QString &sentence) { tell(NoticeBar::Kind::Error, sentence); });
    connect(&m_watch, &PrinterWatch::listed, this, &DialogWindow::takeList);
    connect(m_header, &JobHeader::documentsWanted, this, &DialogWindow::chooseDocuments);
    connect(m_header, &JobHeader::changed, this, &DialogWindow::tellStanding);
    connect(m_tabs->pageSetup(), &PageSetupPane::changed, this, &DialogWindow::tellStanding);
    connect(m_tabs->layoutPane(), &LayoutPane::changed, m_header, &JobHeader::judgePages);
    connect(m_tabs->layoutPane(), &LayoutPane::changed, this, &DialogWindow::tellStanding);
    connect(m_tabs->pageSetup(), &PageSetupPane::refused, this, &DialogWindow::tellRefusal);
    connect(m_tabs->features(), &FeaturesPane::changed, this, &DialogWindow::tellStanding);
    connect(m_tabs->features(), &FeaturesPane::refused, this, &DialogWindow::tellRefusal);
    m_presets = new PresetActions(job(), *m_header->presets(), *this);
    connect(m_presets, &PresetActions::startWanted, this, &DialogWindow::startFrom);
    connect(m_presets, &PresetActions::told, this,
            [this](NoticeBar::Kind kind, const QString &sentence) { tell(kind, sentence); });
    connectUndo();
    connectAdvice();
    connect(m_header->printers(), &PrinterPopUp::picked, this, [this](const QueueName &queue) {
        // One that could not be reached may be tried again.
        if (m_state == State::Ready && queue == job().source().queue)
            return;
        m_choice.reset();
        closePrinter();
        findPrinter({m_wishes.server, queue, QString(), usualStart()});
    });
}

/// From everywhere in the window: the tabs themselves hear of it only where no pop-up has the
/// focus.
void DialogWindow::addPartShortcut(QKeySequence::StandardKey keys, int step)
{
    auto *shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this, [this, step] {
        if (m_tabs->isEnabled())
            m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + m_tabs->count()) %
                                    m_tabs->count());
    });
}

QWidget *DialogWindow::newButtons()
{
    auto *row = new ButtonRow(this);
    row->setObjectName(u"buttonRow"_s);
    m_help = newButton(u"helpButton"_s, tr("Help"), row);
    m_help->setShortcut(QKeySequence::HelpContents);
    m_save = newButton(u"saveButton"_s, tr("Save to &File…"), row);
    m_cancel = newButton(u"cancelButton"_s, tr("Cancel"), row);
    m_print = newButton(u"printButton"_s, {}, row);
    m_print->setAutoDefault(true);
    m_print->setDefault(true);
    m_save->setVisible(m_wishes.output.isNull());
    row->add(ButtonRow::Group::Left, m_help);
    row->add(ButtonRow::Group::Left, m_progress, true);
    row->add(ButtonRow::Group::Middle, m_save);
    row->add(ButtonRow::Group::Right, m_cancel);
    row->add(ButtonRow::Group::Right, m_print);
    connect(m_help, &QPushButton::clicked, this, &DialogWindow::showHelp);
    connect(m_save, &QPushButton::clicked, this, &DialogWindow::saveToFile);
    connect(m_cancel, &QPushButton::clicked, this, &DialogWindow::reject);
    connect(m_print, &QPushButton::clicked, this, &DialogWindow::print);
    return row;
}

QString DialogWindow::printTitle() const
{
    if (!m_wishes.output.isNull())
        return tr("Save");
    return m_mayHavePrinted ? tr("Print Again") : tr("Print");
}

void DialogWindow::start()
{
    setKeyWindow(this);
    if (!m_wishes.isPicture) {
        setPasswordAsker(newSheetAsker(*this));
        readPipes();
    }
    const bool isNamed = m_savedJob && !m_savedJob->queue.isEmpty();
    if (m_controller.mayChoosePrinter() && !isNamed)
        choosePrinter();
    else {
        PrinterSource source = firstPrinter();
        source.start = usualStart();
        findPrinter(source);
    }
}

/// A picture shows the settings as they are saved; a user goes on where he was.
StartingSettings DialogWindow::usualStart() const
{
    using enum StartingSettings::Kind;
    return {m_wishes.isPicture ? Saved : LastUsed, {}};
}

void DialogWindow::setState(State state)
{
    m_state = state;
    const bool isUsable = state == State::Ready || state == State::NoPrinter;
    m_header->setEnabled(isUsable || state == State::Searching);
    m_tabs->setEnabled(state == State::Ready);
    setButtonTitle(m_cancel, state == State::Done ? tr("Close") : tr("Cancel"));
    m_print->setVisible(state != State::Done);
    setTitleWithMnemonic(*m_print, printTitle());
    m_print->setDefault(!m_mayHavePrinted); // not twice by mistake
    updateButtons();
    Q_EMIT stateChanged();
}

bool DialogWindow::mayPrint() const
{
    return m_state == State::Ready && m_documentState && !job().documents().empty() &&
           !hasPipes(job().documents()) && m_header->isAcceptable() &&
           m_tabs->pageSetup()->isAcceptable() && m_tabs->features()->isAcceptable() &&
           m_tabs->layoutPane()->isAcceptable();
}

void DialogWindow::updateButtons()
{
    const bool hasEnd = !m_wishes.output.isNull() || !job().source().queue.queue.isEmpty();
    m_print->setEnabled(mayPrint() && hasEnd);
    m_save->setEnabled(mayPrint());
    m_save->setVisible(m_wishes.output.isNull() && !m_savedJob);
}

void DialogWindow::tell(NoticeBar::Kind kind, const QString &sentence,
                        const QList<NoticeOffer> &offers)
{
    m_notice->tell(kind, sentence, offers);
}

/// Shows what is still true, in place of what was news.
void DialogWindow::tellStanding()
{
    showStanding(doubtsToTell(::settingState(job())));
}

void DialogWindow::showStanding(const Notice &doubts)
{
    const QWidget *shown = m_tabs->currentWidget();
    const bool hidesFault = !m_tabs->pageSetup()->isAcceptable() && shown != m_tabs->pageSetup();
    const bool hidesFeature = !m_tabs->features()->isAcceptable() && shown != m_tabs->features();
    if (m_tabs->isViewMissing())
        tell(NoticeBar::Kind::Error,
             tr("The settings of this panel cannot be shown: a part of the plug-in is "
                "missing. Install Velkaro Print again."));
    else if (hidesFault)
        tell(NoticeBar::Kind::Warning,
             tr("The printer cannot take the paper size in Page Setup. Correct it there "
                "to print."));
    else if (hidesFeature)
        tell(NoticeBar::Kind::Warning, tr("A value in Printer Features cannot be used. Correct it "
                                          "there to print."));
    else if (const Notice standing = standingNotice(doubts); standing.sentence.isEmpty())
        m_notice->clear();
    else
        tell(standing.kind, standing.sentence, standing.offers);
    updateButtons();
}

bool DialogWindow::showPart(const QString &name)
{
    return m_tabs->showPart(name);
}

QWidget *DialogWindow::shownPart() const
{
    return m_tabs->shownPart();
}

void DialogWindow::showHelp()
{
    const DialogTabs::Part *part = m_tabs->currentPart();
    const bool ownHelp = !part || !part->panel || job().session()->help(*part->panel);
    if (ownHelp)
        showHostHelp(this);
}

void DialogWindow::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    m_notice->setMostHeight(height() / kNoticeShare);
    if (job().session() && job().session()->isRunning())
        job().session()->windowDidResize();
}

void DialogWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        keepDimmedTextReadable(*this);
}
