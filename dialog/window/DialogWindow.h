#pragma once

#include "dialog/commandline/CommandLine.h"
#include "dialog/commandline/ExitStatus.h"
#include "dialog/job/PrintJob.h"
#include "dialog/job/SettingRequests.h"
#include "dialog/window/NoticeBar.h"
#include "dialog/window/SummaryPane.h"

#include <QtCore/QPointer>
#include <QtWidgets/QDialog>

#include <memory>
#include <vector>

class JobHeader;
class PageSetupPane;
class PanelPane;
class QPushButton;
class QTabWidget;
class Recorder;
class ServerCall;

/// The print dialog: printer, page setup, the plug-in's panels, the summary, and Print.
///
/// It opens at once and waits for nothing: whatever a server has to say arrives later, from a
/// ServerCall. Panels are released before the panes that show their views.
class DialogWindow : public QDialog
{
    Q_OBJECT

public:
    enum class State {
        Searching, ///< for the printer and its PPD
        Ready,     ///< the user may change settings and print
        NoPrinter, ///< there is none, or it cannot be reached; another one may be picked
        Sending,   ///< the job is on its way
        Done,      ///< the job was accepted or written; only closing is left
    };

    explicit DialogWindow(const CommandLine &line, QWidget *parent = nullptr);
    ~DialogWindow() override;

    /// Before start(), where the session is to be noted. False when the script cannot be written.
    bool beginRecording();
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
    void setState(State state);
    void updateButtons();
    void noteAnswer(const HostCallback::Call &call);
    void tellAnswers();
    void tellStanding();
    bool mayPrint() const;
    void chooseDocuments();
    void showHelp();

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
    void writeFile(const QString &path, const JobRequest &request);
    void send(const JobRequest &request);
    void takeReceipt(const JobReceipt &receipt);
    std::optional<JobRequest> finishedJob();

    const CommandLine m_line;
    std::unique_ptr<Recorder> m_recorder; // outlives the session that it follows
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
    QPointer<ServerCall> m_call;

    JobHeader *m_header;
    NoticeBar *m_notice;
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
