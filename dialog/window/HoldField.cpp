#include "dialog/window/HoldField.h"

#include "dialog/job/JobLayout.h"
#include "dialog/window/FlowLayout.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtCore/QTime>
#include <QtWidgets/QTimeEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kAtATime = "time"_L1;
constexpr auto kHours = "HH:mm"_L1;
constexpr int kHoldLength = 30; // characters

} // namespace

HoldField::HoldField(QWidget *parent)
    : QWidget(parent), m_periods(new PopUpButton(this)), m_time(new QTimeEdit(this))
{
    std::vector<PopUpButton::Item> items;
    const LayoutSetting &setting = *layoutSetting(u"job-hold-until"_s);
    for (const LayoutChoice &choice : setting.choices)
        items.push_back({layoutText(setting, choice.value), choice.value});
    items.push_back({tr("At a time of day"), kAtATime});
    m_periods->setObjectName(u"job-hold-untilPopup"_s);
    m_periods->setMinimumContentsLength(kHoldLength);
    m_periods->setItems(items);
    m_time->setObjectName(u"holdTime"_s);
    m_time->setDisplayFormat(kHours);
    giveAccessibleName(m_time, tr("Time of day"));
    auto *layout = new FlowLayout(this);
    layout->addWidget(m_periods);
    layout->addWidget(m_time);
    connect(m_periods, &QComboBox::activated, this, [this] {
        showTime();
        Q_EMIT edited();
    });
    connect(m_time, &QTimeEdit::userTimeChanged, this, &HoldField::edited);
    showTime();
}

bool HoldField::isTime() const
{
    return m_periods->selectedObject() == kAtATime;
}

void HoldField::showTime()
{
    m_time->setVisible(isTime());
}

void HoldField::setHold(const QString &hold)
{
    const bool isPeriod = hold.isEmpty() || m_periods->indexOfRepresentedObject(hold) >= 0;
    if (isPeriod)
        m_periods->setCurrentIndex(hold.isEmpty() ? 0 : m_periods->indexOfRepresentedObject(hold));
    else
        m_periods->selectObject(kAtATime);
    if (!isPeriod)
        m_time->setTime(QTime::fromString(localTime(hold).left(kHours.size()), kHours));
    showTime();
}

QString HoldField::hold() const
{
    return isTime() ? utcTime(m_time->time().toString(kHours)) : m_periods->selectedObject();
}
