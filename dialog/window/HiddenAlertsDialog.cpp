#include "dialog/window/HiddenAlertsDialog.h"

#include "dialog/window/SheetLayout.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kListSize(420, 160);

} // namespace

HiddenAlertsDialog::HiddenAlertsDialog(const Bundle &bundle, QWidget *parent)
    : QDialog(parent), m_bundle(bundle), m_list(new QListWidget(this))
{
    setObjectName(u"hiddenAlertsDialog"_s);
    setWindowTitle(tr("Hidden Warnings"));
    QLabel *meaning = newPlainLabel(
        tr("You have asked not to be shown these warnings again. Select those to be shown."), this);
    meaning->setWordWrap(true);
    m_list->setObjectName(u"hiddenAlertsList"_s);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setMinimumSize(kListSize);
    m_list->setWordWrap(true);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setAlternatingRowColors(true);
    giveAccessibleName(m_list, tr("Hidden Warnings"));
    auto *buttons = new QDialogButtonBox(this);
    m_showSelected = buttons->addButton(tr("Show Again"), QDialogButtonBox::ActionRole);
    m_showSelected->setObjectName(u"showAgainButton"_s);
    m_showAll = buttons->addButton(tr("Show All Again"), QDialogButtonBox::ActionRole);
    m_showAll->setObjectName(u"showAllAgainButton"_s);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(meaning);
    layout->addWidget(m_list);
    layOutSheet(*this, content, buttons);
    connect(m_showSelected, &QPushButton::clicked, this, [this] { showAlerts(selected()); });
    connect(m_showAll, &QPushButton::clicked, this, [this] { showAlerts(m_alerts); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemSelectionChanged, this,
            [this] { m_showSelected->setEnabled(!selected().isEmpty()); });
    reload();
}

void HiddenAlertsDialog::reload()
{
    m_alerts = hiddenAlerts(m_bundle);
    m_list->clear();
    for (const HiddenAlert &alert : m_alerts)
        m_list->addItem(displayText(alert.sentence));
    m_showSelected->setEnabled(false);
    m_showAll->setEnabled(!m_alerts.isEmpty());
}

void HiddenAlertsDialog::showAlerts(const QList<HiddenAlert> &alerts)
{
    showAgain(m_bundle, alerts);
    reload();
}

QList<HiddenAlert> HiddenAlertsDialog::selected() const
{
    QList<HiddenAlert> alerts;
    for (const QModelIndex &index : m_list->selectionModel()->selectedIndexes())
        alerts += m_alerts[index.row()];
    return alerts;
}
