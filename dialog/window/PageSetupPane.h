#pragma once

#include <QtWidgets/QWidget>

class CustomSizeFields;
class PopUpButton;
class PrintJob;
class QFormLayout;
struct CustomLimits;

/// The page setup: paper, orientation, scaling, two-sided printing, colour matching, and the
/// options that the plug-in leaves to the dialog. Shows what the job has, and changes the job
/// alone.
class PageSetupPane : public QWidget
{
    Q_OBJECT

public:
    /// The job must outlive the pane.
    explicit PageSetupPane(PrintJob &job, QWidget *parent = nullptr);

    /// Shows the settings of the job's printer; after every change of the printer.
    void reload();

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
    void addOrientation(QFormLayout *form);
    void addScaling(QFormLayout *form);
    void addOption(QFormLayout *form, const QString &keyword);
    void addColorMatching(QFormLayout *form);
    PopUpButton *newPopUp(const QString &name);
    void showPaper();
    void choosePaper();
    void useCustomSize();
    void chooseOption(const QString &keyword, PopUpButton *popup);

    PrintJob &m_job;
    QWidget *m_page = nullptr;
    PopUpButton *m_paper = nullptr;
    CustomSizeFields *m_customSize = nullptr; // null: the printer takes no custom sizes
};
