#pragma once

#include "dialog/host/PPDMarks.h"
#include "dialog/window/ScrolledBody.h"

class PaperRows;
class PlacementRows;
class PrintJob;

/// The page setup: the paper in the printer, how the pages lie on it, two-sided printing, colour
/// matching, and the options that the plug-in leaves to the dialog. Shows what the job has, and
/// changes the job alone.
class PageSetupPane : public ScrolledBody
{
    Q_OBJECT

public:
    /// The job must outlive the pane.
    explicit PageSetupPane(PrintJob &job, QWidget *parent = nullptr);

    /// Builds what there is to show, once: before the pane comes in front.
    void fill();

    /// Shows the settings of the job's printer, where it is filled; after every change of the
    /// printer.
    void reload();

    /// Shows what the job has of late: other documents, say.
    void refresh();

    /// Whether all that stands in the fields can be used.
    bool isAcceptable() const;

Q_SIGNALS:
    /// The user has changed something, and the job has it where it can be used.
    void changed();

    /// What the user chose cannot be; one sentence, and the choice. The job is as it was.
    void refused(const QString &sentence, const PPDMark &choice);

private:
    void build();

    PrintJob &m_job;
    PaperRows *m_paper = nullptr; ///< null until it is filled
    PlacementRows *m_placement = nullptr;
};
