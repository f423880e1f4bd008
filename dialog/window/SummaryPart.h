#pragma once

#include "dialog/window/ScrolledBody.h"
#include "dialog/window/SummaryPane.h"

class QCheckBox;
class QPushButton;

/// The part of the dialog that has the summary: all of it, or what differs from the printer's
/// defaults alone, and to be taken along as text.
class SummaryPart : public ScrolledBody
{
    Q_OBJECT

public:
    explicit SummaryPart(QWidget *parent = nullptr);

    void setSections(const QList<SummarySection> &sections);

    SummaryPane *pane() const { return m_pane; }

private:
    QList<SummarySection> shownSections() const;
    void showSections();
    void copy();

    QList<SummarySection> m_sections;
    QCheckBox *m_onlyDifferent;
    QPushButton *m_copy;
    SummaryPane *m_pane;
};
