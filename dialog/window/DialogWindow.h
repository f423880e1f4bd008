#pragma once

#include "dialog/cups/JobSentence.h"
#include "dialog/cups/PrinterCondition.h"
#include "dialog/printing/KeptSettings.h"
#include "dialog/printing/PrintController.h"
#include "dialog/window/DialogWishes.h"
#include "dialog/window/EventWatch.h"
#include "dialog/window/NoticeBar.h"
#include "dialog/window/PrinterWatch.h"
#include "dialog/window/SummaryPane.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QDialog>

#include <memory>
#include <optional>

class DialogAdvice;
class DialogTabs;
class JobHeader;
class PresetActions;
class ProgressStrip;
class ScrolledBody;
class QPushButton;
class SessionUndo;
struct Remedy;

/// The print dialog: printer, page setup, the plug-in's panels, the summary, and Print.
///
/// It shows what its PrintController does, and asks what only a user can answer. It opens at once
/// and waits for nothing. Panels are released before the panes that show their views.
class DialogWindow : public QDialog
{
    Q_OBJECT

public:
    enum class State {
        Searching, ///< for the printer and its PPD
        Ready,     ///< the user may change settings and print
        NoPrinter, ///< there is none, or it cannot be reached; another one may be picked
        Sending,   ///< the job is on its way to the server or into a file
        Done,      ///< the job was accepted or written; only closing is left
    };

    explicit DialogWindow(const DialogWishes &wishes, QWidget *parent = nullptr);
    ~DialogWindow() override;

    /// Whether the wished documents can be printed.
    const Result<> &documentState() const { return m_documentState; }

    /// Looks for the printer.
    void start();

    State state() const { return m_state; }

    /// What the dialog has come to: that a job was accepted or written, else why not. As long as
    /// nothing has gone wrong, that the user has cancelled it.
    const Result<> &outcome() const { return m_outcome; }

    /// The fault that keeps the dialog in State::NoPrinter; else none.
    const Result<> &printerState() const { return m_printerState; }

    /// Whether what was wished could be made.
    const Result<> &settingState() const { return m_settingState; }

    PrintController &controller() { return m_controller; }
    PrintJob &job() { return m_controller.job(); }
    const PrintJob &job() const { return m_controller.job(); }
    const NoticeBar &notice() const { return *m_notice; }

    /// Shows the part of the name ("summary", or a panel's). False without such a part.
    bool showPart(const QString &name);

    /// What is in front: a panel's view, or one of the dialog's own panes.
    QWidget *shownPart() const;

    /// Ends the dialog as Cancel does, for somebody who cannot click: what is on its way is
    /// cancelled, and what asks something is dismissed.
    void end();

    /// Releases the panels, as closing does.
    void closePrinter();

Q_SIGNALS:
    void stateChanged();

    /// The dialog closes, and leaves a job behind that a server has accepted.
    void jobSent(const QString &server, const JobName &job);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

public Q_SLOTS:
    void done(int result) override;

private:
    struct Notice
    {
        NoticeBar::Kind kind = NoticeBar::Kind::Information;
        QString sentence; ///< null: nothing to tell
        QList<NoticeOffer> offers = {};
    };

    // DialogWindow.cpp
    void buildLayout();
    void addPartShortcut(QKeySequence::StandardKey keys, int step);
    QWidget *newButtons();
    QString printTitle() const;
    void setState(State state);
    void updateButtons();
    void tell(NoticeBar::Kind kind, const QString &sentence, const QList<NoticeOffer> &offers = {});
    void tellStanding();
    void showStanding(const Notice &doubts);
    bool mayPrint() const;
    void showHelp();

    // DialogAnswers.cpp
    void tellEvent();
    PPDMark takeLost(const EventOutcome &event);
    void tellOutcome(const EventOutcome &event, const PPDMark &lost);
    void tellRefusal(const QString &sentence, const PPDMark &choice);
    NoticeOffer leaveOffer();
    void connectAdvice();
    void take(const Remedy &remedy, const PPDMark &wanted);
    Notice doubtsToTell(const SettingState &state);
    Notice standingNotice(Notice doubts) const;
    void choose(const RequestedChoice &choice);

    // DialogDocuments.cpp
    void readPipes();
    void chooseDocuments();
    void openDocuments(const QStringList &paths);
    void takeDocuments();
    void countPages();

    // DialogSavedJob.cpp
    void takeSavedJob();
    PrinterSource firstPrinter() const;
    std::optional<JobRequest> savedJobToSend();
    Notice savedJobNotice() const;
    QList<SummarySection> savedJobSections() const;

    // DialogPrinter.cpp
    void choosePrinter();
    void findPrinter(const PrinterSource &source);
    StartingSettings usualStart() const;
    void startFrom(const QString &preset, const StartingSettings &start);
    void beginSearch(const PrinterSource &source);
    void retry();
    QList<NoticeOffer> offersAfter(FaultKind fault);
    static QString waitFor(const PrinterSource &source);
    void takePrinter(const Result<FoundPrinter> &found);
    void showPrinter();
    void showName();
    void makeRequestedSettings();
    void endWithoutPanel();
    Notice standing();
    Notice whatIsMissing();
    Notice withoutPPD() const;
    void watchPrinters();
    void takeList(const Result<QList<Destination>> &list);

    // DialogCondition.cpp
    void askCondition();
    void takeCondition(const PrinterCondition &condition);
    void forgetCondition();
    QStringList printerDoubts() const;

    // DialogExchange.cpp
    void lookForExchange();
    Notice exchangeNotice();
    void openExchanged(const QString &reason);
    QString exchangeOutcome();

    // DialogParts.cpp
    void buildParts();
    void buildTabs();
    void removeParts();
    void changePart();
    void fillPart(const QWidget *page);
    void moveButtonsLast();
    void fitToPart();
    void followView();
    void fitToTexts();
    QSize mostSize() const;
    void setWidth(int width);
    void setHeight(int height);
    QList<SummarySection> summarySections();
    void listCoverPages();

    // DialogUndo.cpp
    void connectUndo();
    void noteSettled();
    void undo();
    void redo();
    void goBackOrOn(Result<> (SessionUndo::*way)(), const QString &words, const NoticeOffer &offer);
    NoticeOffer undoOffer();
    Result<> exchangeSession(Result<> (SessionUndo::*way)());
    void showSettled();

    // DialogPrint.cpp
    std::optional<JobRequest> finishedJob();
    bool isAgreed(const QStringList &doubts);
    void print();
    void saveToFile();
    std::optional<OutputTerms> agreedTerms(const QString &path);
    void writeFile(const QString &path, const JobRequest &request, const OutputTerms &terms);
    void send(const JobRequest &request);
    void judge(const JobPlace &place, const JobReceipt &receipt);
    void takeReceipt(const Result<JobReceipt> &receipt);
    void beginSending(const QString &sentence, const std::shared_ptr<JobProgress> &progress);
    void endSending(const Result<> &outcome, const QString &note);

    const DialogWishes m_wishes;
    PrintController m_controller;
    const std::unique_ptr<SessionUndo> m_undo;
    EventWatch m_events;
    Result<> m_documentState;
    std::optional<JobRequest> m_savedJob; ///< the only document, where that is a saved job
    Result<> m_printerState;
    Result<> m_settingState;
    Result<> m_outcome;
    State m_state = State::Searching;
    std::optional<PrinterChoice> m_choice;       ///< of the dialog, where nobody named a printer
    QList<Fault> m_shortcomings;                 ///< of the printer
    QStringList m_startNotes;                    ///< on the settings that it starts from
    std::optional<PrinterCondition> m_condition; ///< of the printer; none: not known yet
    qint64 m_searchBegan = 0;                    ///< for the printer; seconds since 1970
    std::optional<KeptSettings> m_kept;          ///< while the PPD is read that was exchanged
    QString m_exchange;                          ///< why it is, for the user
    bool m_isExchanged = false;                  ///< what is open is not the queue's PPD any more
    Notice m_standing;                           ///< shown while there is nothing newer to tell
    bool m_coversAreListed = false;              ///< of the printer
    bool m_requestedSettingsAreMade = false;
    bool m_isEnding = false;
    bool m_mayHavePrinted = false; ///< what Print did last
    PageCount m_pageCount;         ///< of the documents
    std::optional<JobName> m_sent; ///< the job that the server has accepted

    PrinterWatch m_watch;
    JobHeader *m_header;
    ScrolledBody *m_head; ///< m_header, where the screen has no room for all of it
    NoticeBar *m_notice;
    ProgressStrip *m_progress;
    DialogTabs *m_tabs;
    DialogAdvice *m_advice;
    PresetActions *m_presets;
    QWidget *m_buttons = nullptr;
    QPushButton *m_help = nullptr;
    QPushButton *m_save = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_print = nullptr;
    int m_partHeight = 0;
};
