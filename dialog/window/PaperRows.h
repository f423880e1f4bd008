#pragma once

#include <QtCore/QObject>

class CustomSizeFields;
class PopUpButton;
class PrintJob;
class QFormLayout;
struct CustomLimits;

/// The paper in the printer: one of the PPD's or a size of the user's own, and the document's page
/// where that is another. Rows of the page setup's form, which owns what they show.
class PaperRows : public QObject
{
    Q_OBJECT

public:
    /// Adds the rows to the form; none where the printer has no papers. The job must outlive them.
    PaperRows(PrintJob &job, QFormLayout *form, QObject *parent);

    /// Whether all that stands in the fields can be used.
    bool isAcceptable() const;

Q_SIGNALS:
    /// The user has changed something, and the job has it where it can be used.
    void changed();

    /// What the user chose cannot be; one sentence. The job is as it was.
    void refused(const QString &sentence);

private:
    void addPaper(QFormLayout *form);
    void addCustomSize(QFormLayout *form, const CustomLimits &limits);
    void addDocumentPage(QFormLayout *form);
    void showPaper();
    void choosePaper();
    void useCustomSize();

    PrintJob &m_job;
    PopUpButton *m_paper = nullptr;
    CustomSizeFields *m_customSize = nullptr; // null: the printer takes no custom sizes
};
