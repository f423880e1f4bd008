#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <utility>

class PDEPanelControls;
class PrintJob;
class QWidget;

/// All that a job's settings are at one moment: marks, ticket, what the panels hold and show.
class SettingsImage
{
public:
    /// Of a job whose panels' controls are filled, and live as long as this.
    explicit SettingsImage(const PrintJob &job);

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
    QList<Control> m_controls;
};
