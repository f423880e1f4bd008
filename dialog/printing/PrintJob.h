#pragma once

#include "dialog/cups/JobSubmission.h"
#include "dialog/job/DocumentKind.h"
#include "dialog/job/JobOptions.h"
#include "dialog/job/ScalingSentences.h"
#include "dialog/printing/PrinterSource.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>
#include <variant>

/// What the user has settled of a job beside the panels' session.
struct SettledState
{
    HostSettings settings;
    QString ownTitle;
    PMOrientation orientation = PMOrientation::Portrait;
    QHash<QString, QString> chosen; ///< keyword to choice, of the user's own

    bool operator==(const SettledState &) const = default;
};

/// A job while it is being prepared: a printer with its panels, what the user settles, and the
/// documents. Every change goes through the host session, so that the panels hear of it.
///
/// A queue without a usable PPD has no session: its job has the dialog's own settings alone.
class PrintJob
{
public:
    enum class ColorMatching { Printer, Application };

    explicit PrintJob(const Documents &documents = {});

    const Documents &documents() const { return m_documents; }
    /// The user's own title, else the documents'.
    QString title() const { return m_ownTitle.isEmpty() ? m_title : m_ownTitle; }
    const QString &documentTitle() const { return m_title; }
    const QString &ownTitle() const { return m_ownTitle; }
    void setTitle(const QString &title) { m_ownTitle = title; }

    void setDocuments(const Documents &documents);

    /// Takes another printer; the former one's panels must not be on screen any more. Copies and
    /// pages that the user has settled stay, a session's own settings do not.
    void setPrinter(const PrinterSource &source, OpenedPrinter printer);

    /// Releases the panels.
    void closePrinter();

    const PrinterSource &source() const { return m_source; }
    HostSession *session() const; ///< null: none

    /// What the printer is called from run to run: its queue and server, or its PPD file.
    QString printerKey() const;

    ppd_file_t *ppd() const { return session() ? session()->ppd() : nullptr; }

    SettledState settled() const { return {m_settings, m_ownTitle, orientation(), m_chosen}; }
    void setSettled(const SettledState &state);

    HostSettings &settings() { return m_settings; }
    const HostSettings &settings() const { return m_settings; }

    PMOrientation orientation() const;
    void setOrientation(PMOrientation orientation);

    /// None without a session, or when nothing is marked.
    std::optional<PMPaper> paper() const;

    /// Another sheet in the printer; the page is mapped to none any more.
    void setPaper(const PMPaper &paper);

    /// The `PageSize` choice of the sheet that the document's page is mapped to; null: none, the
    /// sheet is the page's paper.
    QString mappedPaper() const;

    /// The paper in the printer: what the page is mapped to, else paper().
    std::optional<PMPaper> sheet() const;

    /// The paper that the document's page was made for, where that is not the sheet.
    std::optional<PMPaper> documentPage() const;

    /// On what the documents are scaled.
    ScalingCase scalingCase() const;

    /// Whether the printer leaves the choice who matches the colors.
    bool offersColorMatching() const;
    ColorMatching colorMatching() const;
    void setColorMatching(ColorMatching matching);

    /// Marks a choice of the dialog's own. False without such a choice.
    bool mark(const QString &keyword, const QString &choice);

    /// Notes a choice as somebody's own: one that was picked, or asked for by name. Those that were
    /// saved for the printer are. What rules mark in turn is nobody's.
    void noteChoice(const PPDMark &choice) { m_chosen.insert(choice.keyword, choice.choice); }
    bool isChosen(const PPDMark &choice) const
    {
        return m_chosen.value(choice.keyword) == choice.choice;
    }

    /// Options that no panel shows but the dialog: the PPD's `Duplex`, and what the plug-in wants
    /// watched. Those that the PPD has.
    QStringList ownKeywords() const;

    /// The standard attributes that say the same as choices of the printer.
    QList<AttributeRule> attributeRules() const;

    /// What the job has otherwise than its printer. Where the PPD is not the queue's own, that is
    /// all that is marked, defaults as well: it may be sent to a queue with other ones.
    JobOptions options() const;

    /// The job as it would be sent now: all that is marked. A server chooses by itself what a job
    /// does not say, out of presets, standard attributes and its queue's own defaults.
    JobOptions wholeOptions() const;
    JobRequest request(const QList<JobOption> &options) const;

private:
    const PMPageFormat &format() const;
    JobOptions optionsBeside(const QList<PPDMark> &defaults) const;

    Documents m_documents;
    QList<DocumentKind> m_kinds; // of the documents
    QString m_title;             // of the documents
    QString m_ownTitle;          // empty: the user has given none
    PrinterSource m_source;
    HostSettings m_settings;
    HostSettings m_savedSettings; // to tell whether the user has settled anything since
    QList<JobOption> m_saved;
    QHash<QString, QString> m_chosen; // keyword to choice
    QStringList m_settled;            ///< JobValues::settled
    /// The panels' session, which has the page format, or that format alone.
    std::variant<PMPageFormat, std::unique_ptr<HostSession>> m_printer;
};
