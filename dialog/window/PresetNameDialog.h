#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for the name of a preset, and says while it is typed why it cannot be called that.
class PresetNameDialog : public QDialog
{
    Q_OBJECT

public:
    /// `taken` are the names of the presets that there are. They may be given when `mayReplace`.
    PresetNameDialog(const QString &title, const QStringList &taken, bool mayReplace,
                     QWidget *parent);

    void setName(const QString &name);
    QString name() const;

private:
    void judge();
    void makeRoom();

    const QStringList m_taken;
    const bool m_mayReplace;
    QLineEdit *m_name;
    QLabel *m_validation;
    QPushButton *m_ok;
};
