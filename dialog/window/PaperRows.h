#pragma once

#include "dialog/host/PPDMarks.h"
#include "dialog/job/PaperMemory.h"
#include "dialog/job/PaperSizes.h"

#include <QtCore/QObject>

class CustomSizeFields;
class OwnSizeFields;
class PopUpButton;
class PrintJob;
class QCheckBox;
class QFormLayout;
struct CustomLimits;
struct PMPaper;

/// The paper in the printer: first how large, then whether it is printed to its edges; a size of
/// the user's own, which can be kept by a name; and the document's page where that is another
/// paper. Rows of the page setup's form, which owns what they show.
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

    /// What the user chose cannot be; one sentence, and the choice. The job is as it was.
    void refused(const QString &sentence, const PPDMark &choice);

private:
    void addPaper(QFormLayout *form);
    void addCustomSize(QFormLayout *form, const CustomLimits &limits);
    void addDocumentPage(QFormLayout *form);
    void fillList();
    void showPaper();
    void showCustomSize(const std::optional<PMPaper> &paper);
    void pickRow();
    void takeChoice(const QString &choice);
    PMPaper ownPaperLike(const PMPaper &sheet) const;
    void takeOwnSize(const PMPaper &paper);
    void chooseBorderless(bool borderless);
    void useCustomSize();
    QString nameOfSheet() const;
    void keepSheet(const QString &name);
    void forgetSheet();

    PrintJob &m_job;
    const QList<PaperSize> m_sizes; // of the printer
    QList<OwnSize> m_own;           // of the user, which the printer takes
    PopUpButton *m_paper = nullptr;
    QCheckBox *m_borderless = nullptr;
    CustomSizeFields *m_customSize = nullptr; // null: the printer takes no custom sizes
    OwnSizeFields *m_ownSize = nullptr;       // likewise
};
