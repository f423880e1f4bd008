#include "dialog/window/LayoutPane.h"

#include "dialog/job/JobLayout.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/FieldWidth.h"
#include "dialog/window/FlowLayout.h"
#include "dialog/window/HoldField.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLayoutMargin = 16;
constexpr int kChoiceLength = 30; // characters
constexpr int kCoverLength = 14;
constexpr int kUsualPriority = 50;
constexpr int kMostPriority = 100;
constexpr auto kNoCover = "none"_L1;

QString popupName(const LayoutSetting &setting)
{
    return setting.option + u"Popup"_s;
}

QString rowTitle(const LayoutSetting &setting)
{
    return LayoutPane::tr("%1:").arg(layoutTitle(setting));
}

QWidget *rowOf(std::initializer_list<QWidget *> widgets)
{
    auto *row = new QWidget;
    auto *layout = new FlowLayout(row);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    return row;
}

/// The setting is chosen in a pop-up of its own.
bool isChosenInPopUp(const LayoutSetting &setting)
{
    return !setting.choices.empty() && !setting.normalized;
}

} // namespace

LayoutPane::LayoutPane(PrintJob &job, QWidget *parent) : ScrolledBody(parent), m_job(job)
{
    setObjectName(u"layoutPane"_s);
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->setContentsMargins(kLayoutMargin, kLayoutMargin, kLayoutMargin, kLayoutMargin);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    for (const LayoutSetting &setting : layoutSettings())
        if (isChosenInPopUp(setting))
            addChoices(form, setting);
    addTitle(form);
    addHold(form);
    addPriority(form);
    addCovers(form);
    addNotification(form);
    setContent(page);
    reload();
}

void LayoutPane::addTitle(QFormLayout *form)
{
    m_title = new QLineEdit;
    m_title->setObjectName(u"titleField"_s);
    m_title->setMinimumWidth(kChoiceLength * fontMetrics().averageCharWidth());
    addLabelledRow(form, tr("Job Title:"), m_title);
    connect(m_title, &QLineEdit::textEdited, this, [this](const QString &title) {
        m_job.setTitle(title);
        Q_EMIT changed();
    });
}

void LayoutPane::addChoices(QFormLayout *form, const LayoutSetting &setting)
{
    auto *popup = new PopUpButton;
    popup->setObjectName(popupName(setting));
    popup->setMinimumContentsLength(kChoiceLength);
    std::vector<PopUpButton::Item> items;
    for (const LayoutChoice &choice : setting.choices)
        items.push_back({layoutText(setting, choice.value), choice.value});
    popup->setItems(items);
    addLabelledRow(form, rowTitle(setting), popup);
    connect(popup, &QComboBox::activated, this,
            [this, &setting, popup] { take(setting, popup->selectedObject()); });
}

void LayoutPane::addHold(QFormLayout *form)
{
    const LayoutSetting &setting = *layoutSetting(u"job-hold-until"_s);
    m_hold = new HoldField;
    addLabelledRow(form, rowTitle(setting), m_hold);
    giveAccessibleName(m_hold->popup(), layoutTitle(setting));
    connect(m_hold, &HoldField::edited, this, [this, &setting] { take(setting, m_hold->hold()); });
}

void LayoutPane::addPriority(QFormLayout *form)
{
    const LayoutSetting &setting = *layoutSetting(u"job-priority"_s);
    m_priority = new NumberField;
    m_priority->setObjectName(u"priorityField"_s);
    m_priority->setRange(1, kMostPriority);
    addLabelledRow(form, rowTitle(setting), m_priority);
    connect(m_priority, &NumberField::editedByUser, this,
            [this, &setting] { take(setting, QString::number(m_priority->value())); });
}

void LayoutPane::addCovers(QFormLayout *form)
{
    m_coverBefore = new PopUpButton;
    m_coverBefore->setObjectName(u"coverBeforePopup"_s);
    m_coverAfter = new PopUpButton;
    m_coverAfter->setObjectName(u"coverAfterPopup"_s);
    giveAccessibleName(m_coverBefore, tr("Cover page before the job"));
    giveAccessibleName(m_coverAfter, tr("Cover page after the job"));
    for (PopUpButton *popup : {m_coverBefore, m_coverAfter}) {
        popup->setMinimumContentsLength(kCoverLength);
        connect(popup, &QComboBox::activated, this, &LayoutPane::takeCovers);
    }
    addLabelledRow(form, rowTitle(*layoutSetting(u"job-sheets"_s)),
                   rowOf({m_coverBefore, m_coverAfter}));
}

void LayoutPane::addNotification(QFormLayout *form)
{
    m_notification = new QLineEdit;
    m_notification->setObjectName(u"notificationField"_s);
    m_notification->setPlaceholderText(tr("Mail address, or nothing"));
    m_notification->setMinimumWidth(std::max(kChoiceLength * fontMetrics().averageCharWidth(),
                                             widthForPlaceholder(*m_notification)));
    m_notificationValidation = newPlainLabel(QString());
    m_notificationValidation->setObjectName(u"notificationValidation"_s);
    const LayoutSetting &setting = *layoutSetting(u"notify-recipient-uri"_s);
    addLabelledRow(form, rowTitle(setting), rowOf({m_notification, m_notificationValidation}));
    giveAccessibleName(m_notification, layoutTitle(setting));
    connect(m_notification, &QLineEdit::textEdited, this, &LayoutPane::takeNotification);
}

void LayoutPane::reload()
{
    const JobLayout &layout = m_job.settings().layout;
    for (const LayoutSetting &setting : layoutSettings()) {
        auto *popup = findChild<PopUpButton *>(popupName(setting));
        if (isChosenInPopUp(setting) && !popup->selectObject(layout.*setting.value))
            popup->setCurrentIndex(0);
    }
    m_title->setPlaceholderText(displayText(m_job.documentTitle()));
    if (const QString title = m_job.ownTitle(); m_title->text() != title)
        m_title->setText(title);
    m_hold->setHold(layout.hold);
    m_priority->setDoubleValue(layout.priority.isEmpty() ? kUsualPriority
                                                         : layout.priority.toInt());
    fillCovers();
    const QString address =
        layoutText(*layoutSetting(u"notify-recipient-uri"_s), layout.notification);
    if (isAcceptable() && m_notification->text() != address)
        m_notification->setText(address);
    enableWhatMatters();
}

void LayoutPane::setCoverPages(const QStringList &names)
{
    m_coverPages = names;
    fillCovers();
}

/// What the job has is among the items, whether or not the queue offers it.
void LayoutPane::fillCovers()
{
    const QString covers = m_job.settings().layout.coverPages;
    const std::pair<PopUpButton *, int> places[] = {{m_coverBefore, 0}, {m_coverAfter, 1}};
    for (const auto &[popup, place] : places) {
        const QString chosen =
            covers.isEmpty() ? QString(kNoCover) : covers.section(u',', place, place);
        QStringList names{kNoCover};
        for (const QString &name : m_coverPages + QStringList{chosen})
            if (!names.contains(name))
                names += name;
        std::vector<PopUpButton::Item> items;
        for (const QString &name : names)
            items.push_back({displayText(coverText(name)), name});
        popup->setItems(items);
        popup->selectObject(chosen);
    }
}

void LayoutPane::takeCovers()
{
    take(*layoutSetting(u"job-sheets"_s),
         m_coverBefore->selectedObject() + u',' + m_coverAfter->selectedObject());
}

bool LayoutPane::isAcceptable() const
{
    const QString address = m_notification->text();
    return address.isEmpty() ||
           !normalizedLayoutValue(*layoutSetting(u"notify-recipient-uri"_s), address).isNull();
}

void LayoutPane::takeNotification()
{
    setLabelText(m_notificationValidation,
                 isAcceptable() ? QString() : tr("An address looks like this: me@example.com"));
    const LayoutSetting &setting = *layoutSetting(u"notify-recipient-uri"_s);
    m_job.settings().layout.notification =
        isAcceptable() ? normalizedLayoutValue(setting, m_notification->text()) : QString();
    Q_EMIT changed();
}

void LayoutPane::take(const LayoutSetting &setting, const QString &value)
{
    m_job.settings().layout.*setting.value = normalizedLayoutValue(setting, value);
    enableWhatMatters();
    Q_EMIT changed();
}

/// A booklet has two pages a side, in an order of its own.
void LayoutPane::enableWhatMatters()
{
    const JobLayout &layout = m_job.settings().layout;
    const bool isBooklet = layout.booklet == "on"_L1;
    const bool areSeveral = layout.pagesPerSheet.toInt() > 1;
    findChild<PopUpButton *>(u"number-upPopup"_s)->setEnabled(!isBooklet);
    findChild<PopUpButton *>(u"number-up-layoutPopup"_s)->setEnabled(!isBooklet && areSeveral);
    findChild<PopUpButton *>(u"page-borderPopup"_s)->setEnabled(isBooklet || areSeveral);
}
