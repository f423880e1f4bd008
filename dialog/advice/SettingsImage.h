#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <utility>

class PDEPanelControls;
class PrintJob;
class QWidget;

/// All that a job's settings are at one moment: marks, ticket, what the panels hold and show, and
/// what stands in the way of a wanted choice.
class SettingsImage
{
public:
    /// Of a job whose panels' controls are filled, and live as long as this.
    SettingsImage(const PrintJob &job, const PPDMark &wanted);

    /// A short text that is equal for equal settings. What the keyword itself is set to is left out
    /// (null: nothing is).
    QByteArray text(const QString &leftOut = QString()) const;

    /// Whether equal texts mean equal settings: not where a panel does not let anybody look into
    /// it.
    bool isWhole() const;

private:
    struct Control
    {
        const PDEPanelControls *panel;
        const QWidget *widget;
    };

    const PrintJob &m_job;
    const PPDMark m_wanted;
    const bool m_isConstrained; ///< whether the PPD's constraints speak of the wanted setting
    QList<Control> m_controls;
};
