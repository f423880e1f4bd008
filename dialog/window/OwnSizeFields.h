#pragma once

#include <QtWidgets/QWidget>

class QLineEdit;
class QPushButton;

/// The name of a size that the user has entered: gives it one, so that it stands in the list of
/// papers from now on, another one, or takes it out of the list.
class OwnSizeFields : public QWidget
{
    Q_OBJECT

public:
    explicit OwnSizeFields(QWidget *parent = nullptr);

    /// Shows the size's name; null: it is not kept. One that the printer cannot take
    /// (`isAcceptable` false) cannot be kept.
    void setKept(const QString &name, bool isAcceptable);

Q_SIGNALS:
    /// The user wants the size kept by the name, which is as ownSizeName() has it.
    void kept(const QString &name);

    /// The user wants the kept size to have another name.
    void renamed(const QString &name);

    /// The user wants the kept size to be forgotten.
    void removed();

protected:
    /// Return keeps the size; it must not print.
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPushButton *newButton(const QString &name, const QString &title);
    void judge();

    QLineEdit *m_name;
    QPushButton *m_keep;
    QPushButton *m_rename;
    QPushButton *m_remove;
    QString m_kept; // null: the size is not kept
    bool m_isAcceptable = false;
};
