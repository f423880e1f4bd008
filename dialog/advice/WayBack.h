#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <functional>

class PrintJob;
class SettingsImage;

/// Leads a job back to the settings that it had, by picks as a person would make them.
class WayBack
{
public:
    using Make = std::function<void(const PPDMark &)>;

    /// To what the job is set to now. `make` makes a setting, and answers what is asked about it.
    /// Job and image must outlive this.
    WayBack(const PrintJob &job, const SettingsImage &image, Make make);

    /// Whether everything is as it was again. When not, it is neither what it was nor what it had
    /// become.
    bool goBack() const;

private:
    bool pickFormer() const;

    const PrintJob &m_job;
    const SettingsImage &m_image;
    const Make m_make;
    const QList<PPDMark> m_former; ///< as the controls show it, or as it is marked
    const QByteArray m_text;
};
