#pragma once

#include <QtCore/QObject>

class PopUpButton;
class PrintJob;
class QFormLayout;
class QLabel;

/// How the pages of the document lie on the sheet: orientation and scaling, and what comes of them
/// in words. Rows of the page setup's form, which owns what they show.
class PlacementRows : public QObject
{
    Q_OBJECT

public:
    /// Adds the rows to the form. The job must outlive them.
    PlacementRows(PrintJob &job, QFormLayout *form, QObject *parent);

    /// Shows what the job has, on the sheet that it has by now.
    void refresh();

Q_SIGNALS:
    /// The user has changed something, and the job has it.
    void changed();

private:
    void addOrientation(QFormLayout *form);
    void addScaling(QFormLayout *form);

    QLabel *addSentence(QFormLayout *form, const QString &name);

    PrintJob &m_job;
    PopUpButton *m_scaling = nullptr;
    QLabel *m_orientationSentence = nullptr;
    QLabel *m_scalingSentence = nullptr;
};
