#pragma once

#include "dialog/host/HiddenAlerts.h"

#include <QtWidgets/QDialog>

class QListWidget;
class QPushButton;

/// The alerts that the user has asked not to be shown again, to have each or all of them shown.
class HiddenAlertsDialog : public QDialog
{
    Q_OBJECT

public:
    /// The bundle must outlive the dialog.
    HiddenAlertsDialog(const Bundle &bundle, QWidget *parent);

private:
    void reload();
    void showAlerts(const QList<HiddenAlert> &alerts);
    QList<HiddenAlert> selected() const;

    const Bundle &m_bundle;
    QList<HiddenAlert> m_alerts;
    QListWidget *m_list;
    QPushButton *m_showSelected;
    QPushButton *m_showAll;
};
