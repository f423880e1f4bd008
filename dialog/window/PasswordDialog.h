#pragma once

#include "dialog/cups/Passwords.h"

#include <QtWidgets/QDialog>

class QCheckBox;
class QLineEdit;

/// Asks for a user name and a password, and says which server wants them and what for.
class PasswordDialog : public QDialog
{
    Q_OBJECT

public:
    /// `canKeep`: there is a keyring that the password can be kept in.
    PasswordDialog(const PasswordQuestion &question, bool canKeep, QWidget *parent);

    /// What was typed. The fields are empty afterwards, and their memory is cleared.
    Credentials takeAnswer();

private:
    QLineEdit *m_user;
    QLineEdit *m_domain = nullptr; ///< null: none is wanted
    QLineEdit *m_password;
    QCheckBox *m_keep;
};
