#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QObject>

class PopUpButton;
class PrintJob;
class QFormLayout;

/// The options that the plug-in leaves to the dialog, two-sided printing first, and who matches the
/// colours. Rows of the page setup's form, which owns what they show.
class OptionRows : public QObject
{
    Q_OBJECT

public:
    /// Adds the rows to the form. The job must outlive them.
    OptionRows(PrintJob &job, QFormLayout *form, QObject *parent);

Q_SIGNALS:
    /// The user has changed something, and the job has it.
    void changed();

    /// What the user chose cannot be; one sentence, and the choice. The job is as it was.
    void refused(const QString &sentence, const PPDMark &choice);

private:
    void addOption(QFormLayout *form, const QString &keyword);
    void chooseOption(const QString &keyword, PopUpButton *popup);
    void addColorMatching(QFormLayout *form);

    PrintJob &m_job;
};
