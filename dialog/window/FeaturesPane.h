#pragma once

#include "dialog/host/PPDMarks.h"
#include "dialog/job/PrinterFeatures.h"

#include <QtWidgets/QScrollArea>

#include <vector>

class FeatureField;
class PrintJob;
class QFormLayout;
class QVBoxLayout;

/// The features of the printer that nobody else has a control for, by the groups of its PPD. What
/// is built in stands at the end, to be looked at. Shows what the job has, and changes the job
/// alone.
class FeaturesPane : public QScrollArea
{
    Q_OBJECT

public:
    /// The job must outlive the pane.
    explicit FeaturesPane(PrintJob &job, QWidget *parent = nullptr);

    /// Shows the features of the job's printer; before its session is closed too (then none).
    void reload();
    void clear();

    /// Whether all that stands in the fields can be used.
    bool isAcceptable() const;

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has changed something, and the job has it where it can be used.
    void changed();

    /// What the user chose cannot be; one sentence, and the choice. The job is as it was.
    void refused(const QString &sentence, const PPDMark &choice);

private:
    void addGroup(QVBoxLayout *page, const FeatureGroup &group);
    void addField(QFormLayout *form, const PrinterFeature &feature);
    void addInstalled(QFormLayout *form, const PrinterFeature &feature);
    void choose(const PrinterFeature &feature, const QString &value);

    PrintJob &m_job;
    std::vector<FeatureField *> m_fields;
};
