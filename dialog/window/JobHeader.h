#pragma once

#include "dialog/printing/PageCounter.h"

#include <QtWidgets/QWidget>

#include <optional>

class NumberField;
class PresetsRow;
class PrinterPopUp;
class PrintJob;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

/// The head of the dialog: what is printed, where, how often, and which pages of it.
class JobHeader : public QWidget
{
    Q_OBJECT

public:
    /// The job must outlive the header.
    explicit JobHeader(PrintJob &job, QWidget *parent = nullptr);

    PrinterPopUp *printers() const { return m_printers; }
    PresetsRow *presets() const { return m_presets; }

    /// The pages of the job's documents, as far as they are known.
    void setPageCount(const PageCount &count);

    /// Shows the job's documents and settings.
    void reload();

    /// Says what is wrong with the pages that were typed, else how many there are. To be called
    /// when the job's layout has changed: it may be sides that are counted.
    void judgePages();

    /// Whether copies and pages are shown: a saved job has its own.
    void showJobSettings(bool shown);

    /// Whether the pages that were typed are a list of pages, of which the documents have some as
    /// far as that is known.
    bool isAcceptable() const;

Q_SIGNALS:
    void changed();
    /// The user wants to choose the documents.
    void documentsWanted();

private:
    QLayout *newDocumentsRow();
    QLayout *newSettingsRow();
    void takePages();
    QString countSentence() const;
    std::optional<int> typedBeyond() const;

    PrintJob &m_job;
    QLabel *m_documents;
    QPushButton *m_choose;
    PrinterPopUp *m_printers;
    PresetsRow *m_presets;
    NumberField *m_copies;
    QLineEdit *m_pages;
    QLayout *m_presetsRow = nullptr;
    QLayout *m_settingsRow = nullptr;
    QLabel *m_pagesValidation;
    std::optional<PageCount> m_pageCount; ///< none while it is being counted
};
