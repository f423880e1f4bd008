#include "dialog/window/ProgressStrip.h"

#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PanelPoint.h"

#include <QtCore/QTimerEvent>

#include <algorithm>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds kInterval{100};
constexpr int kSteps = 1000;
constexpr int kLeastStripWidth = 20; // points

} // namespace

ProgressStrip::ProgressStrip(QWidget *parent) : QProgressBar(parent)
{
    setObjectName(QStringLiteral("progressStrip"));
    giveAccessibleName(this, tr("Progress"));
    setRange(0, kSteps);
    QSizePolicy room = sizePolicy();
    room.setRetainSizeWhenHidden(true); // nothing beside it moves
    setSizePolicy(room);
    hide();
}

QSize ProgressStrip::minimumSizeHint() const
{
    return {toPixels(kLeastStripWidth), QProgressBar::minimumSizeHint().height()};
}

void ProgressStrip::follow(const std::shared_ptr<const JobProgress> &progress, qint64 bytes)
{
    end();
    m_progress = progress;
    m_bytes = std::max<qint64>(1, bytes);
    setValue(0);
    m_timer = startTimer(kInterval);
}

void ProgressStrip::end()
{
    if (m_progress)
        killTimer(m_timer);
    m_progress.reset();
    hide();
}

void ProgressStrip::timerEvent(QTimerEvent *event)
{
    if (!m_progress || event->timerId() != m_timer) {
        QProgressBar::timerEvent(event);
        return;
    }
    const double share = static_cast<double>(m_progress->bytes()) / static_cast<double>(m_bytes);
    setValue(std::min(kSteps, static_cast<int>(share * kSteps)));
    show();
}
