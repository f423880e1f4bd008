#pragma once

#include "dialog/files/OutputFile.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/job/JobFileWriter.h"
#include "dialog/job/PipeDocuments.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/program/CommandLine.h"
#include "dialog/program/ExitStatus.h"
#include "dialog/window/NoticeBar.h"
#include "dialog/window/SummaryPane.h"

#include <QtCore/QPointer>
#include <QtWidgets/QDialog>

#include <memory>
#include <vector>

class JobHeader;
class PageSetupPane;
class PanelPane;
class ProgressStrip;
class QPushButton;
class QTabWidget;
class Recorder;
class BackgroundCall;

/// The print dialog: printer, page setup, the plug-in's panels, the summary, and Print.
///
/// It opens at once and waits for nothing: whatever a server has to say arrives later, from a
/// BackgroundCall. Panels are released before the panes that show their views.
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

    explicit DialogWindow(const CommandLine &line, QWidget *parent = nullptr);
    ~DialogWindow() override;

    /// The document of the command line that cannot be printed; one sentence, null when there is
    /// none.
    QString documentError() const { return m_documentError; }

    /// Before start(), where the session is to be noted. False when the script cannot be written.
    bool beginRecording();

    /// When the dialog has closed. False when not all of the session could be noted.
    bool finishRecording();
    QString recordingError() const { return m_recordingError; }

    /// Looks for the printer.
    void start();

    State state() const { return m_state; }
    ExitStatus exitStatus() const { return m_exitStatus; }
    PrintJob &job() { return m_job; }
    const NoticeBar &notice() const { return *m_notice; }

    /// Shows the part of the name ("summary", or a panel's). False without such a part.
    bool showPart(const QString &name);

    /// What is in front: a panel's view, or one of the dialog's own panes.
    QWidget *shownPart() const;

    /// Ends the dialog as Cancel does, for somebody who cannot click: what is on its way is
    /// cancelled, and what asks something is dismissed.
    void end();

    /// What the command line asked for and could not be made; one sentence, null otherwise.
    QString settingError() const { return m_settingError; }

Q_SIGNALS:
    void stateChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

public Q_SLOTS:
    void done(int result) override;

private:
    struct Notice
    {
        NoticeBar::Kind kind = NoticeBar::Kind::Information;
        QString sentence; ///< null: nothing to tell
    };

    /// A tab of the dialog.
    struct Part
    {
        QString name;
        QWidget *page = nullptr;
        const HostPanel *panel = nullptr; // of the session; null for the dialog's own parts
    };

    // DialogWindow.cpp
    void buildLayout();
    QWidget *newButtons();
    QString printTitle() const;
    void setState(State state);
    void updateButtons();
    void noteAnswer(const HostCallback::Call &call);
    void tellAnswers();
    void tellStanding();
    bool mayPrint() const;
    void chooseDocuments();
    void showHelp();

    // DialogDocuments.cpp
    void takeDocuments(const OpenedDocuments &opened);
    void readPipedDocuments();
    void takeRead(const ReadDocuments &read);

    // DialogPrinter.cpp
    void findPrinter(const PrinterSource &source);
    static QString waitFor(const PrinterSource &source);
    void takePrinter(const PrinterSource &source, FetchedPrinter &fetched);
    void openPPD(const PrinterSource &source, FetchedPrinter &fetched);
    void makeRequestedSettings();
    Notice whatIsMissing() const;
    void listPrinters();
    void closePrinter();

    // DialogParts.cpp
    void buildParts();
    void removeParts();
    const Part *currentPart() const;
    void changePart();
    void moveButtonsLast();
    void hideShownPanel();
    void fitToPart();
    void followView();
    void setHeight(int height);
    QList<SummarySection> summarySections();
    SummarySection ownSection() const;

    // DialogPrint.cpp
    void print();
    void saveToFile();
    std::optional<OutputTerms> agreedTerms(const QString &path);
    void writeFile(const QString &path, const JobRequest &request, const OutputTerms &terms);
    void takeWritten(const WrittenJobFile &written);
    void send(const JobRequest &request);
    void takeReceipt(const JobReceipt &receipt);
    std::shared_ptr<JobProgress> beginSending(const QString &sentence);
    void endSending(State state);
    std::optional<JobRequest> finishedJob();

    const CommandLine m_line;
    std::unique_ptr<Recorder> m_recorder; // outlives the session that it follows
    QString m_documentError;
    QString m_recordingError;
    PrintJob m_job;
    State m_state = State::Searching;
    ExitStatus m_exitStatus = ExitStatus::Cancelled;
    Refusal m_refusal;
    QString m_settingError;
    Notice m_standing;       // shown while there is nothing newer to tell
    QString m_refusalToTell; // of the pick that is going on
    bool m_answersAreNoted = false;
    bool m_requestedSettingsAreMade = false;
    bool m_printersAreListed = false;
    bool m_isEnding = false;
    bool m_mayHavePrinted = false; ///< what Print did last
    QPointer<BackgroundCall> m_call;
    QPointer<BackgroundCall> m_reading; ///< of documents that are pipes

    JobHeader *m_header;
    NoticeBar *m_notice;
    ProgressStrip *m_progress;
    QTabWidget *m_tabs;
    PageSetupPane *m_pageSetup;
    SummaryPane *m_summary;
    QPushButton *m_help = nullptr;
    QPushButton *m_save = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_print = nullptr;
    std::vector<Part> m_parts;
    const HostPanel *m_shownPanel = nullptr;
    bool m_viewIsMissing = false; ///< of the panel in m_shownPanel
    int m_partHeight = 0;
};
