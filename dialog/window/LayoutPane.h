#pragma once

#include "dialog/window/ScrolledBody.h"

#include <QtCore/QStringList>

class HoldField;
class NumberField;
class PopUpButton;
class PrintJob;
class QFormLayout;
class QLabel;
class QLineEdit;
struct LayoutSetting;

/// How the pages are laid out, and what the server is to do with the job: what every printer can,
/// whatever its PPD. Shows what the job has, and changes the job alone. What nobody has touched is
/// not sent.
class LayoutPane : public ScrolledBody
{
    Q_OBJECT

public:
    /// The job must outlive the pane.
    explicit LayoutPane(PrintJob &job, QWidget *parent = nullptr);

    /// Builds what there is to show, once: before the pane comes in front.
    void fill();

    /// Shows the settings of the job, where it is filled.
    void reload();

    /// The cover pages that the queue offers, by the server's names.
    void setCoverPages(const QStringList &names);

    /// Whether all that stands in the fields can be used.
    bool isAcceptable() const;

Q_SIGNALS:
    /// The user has changed something, and the job has it where it can be used.
    void changed();

private:
    void addTitle(QFormLayout *form);
    void addChoices(QFormLayout *form, const LayoutSetting &setting);
    void addHold(QFormLayout *form);
    void addPriority(QFormLayout *form);
    void addCovers(QFormLayout *form);
    void addNotification(QFormLayout *form);
    void fillCovers();
    void takeCovers();
    void takeNotification();
    void take(const LayoutSetting &setting, const QString &value);
    void enableWhatMatters();

    PrintJob &m_job;
    QLineEdit *m_title = nullptr;
    HoldField *m_hold = nullptr;
    NumberField *m_priority = nullptr;
    PopUpButton *m_coverBefore = nullptr;
    PopUpButton *m_coverAfter = nullptr;
    QLineEdit *m_notification = nullptr;
    QLabel *m_notificationValidation = nullptr;
    QStringList m_coverPages;
};
