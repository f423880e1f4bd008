#pragma once

#include <QtWidgets/QWidget>

class PopUpButton;
class QTimeEdit;

/// When a job is to be printed: one of the server's periods, or a time of day, which people give in
/// the time of this machine.
class HoldField : public QWidget
{
    Q_OBJECT

public:
    explicit HoldField(QWidget *parent = nullptr);

    /// Shows the value of `job-hold-until`; null: now.
    void setHold(const QString &hold);

    /// The value of `job-hold-until` that is shown.
    QString hold() const;

    PopUpButton *popup() const { return m_periods; }

Q_SIGNALS:
    /// The user has chosen another time.
    void edited();

private:
    bool isTime() const;
    void showTime();

    PopUpButton *m_periods;
    QTimeEdit *m_time;
};
