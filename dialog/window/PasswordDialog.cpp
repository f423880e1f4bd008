#include "dialog/window/PasswordDialog.h"

#include "dialog/cups/PasswordWords.h"
#include "dialog/window/BrokenTitle.h"
#include "dialog/window/SentenceLabel.h"
#include "dialog/window/SheetLayout.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtGui/QScreen>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// In as many lines as it needs beside the mark of its box.
QString linesForScreen(const QString &title, const QWidget &widget)
{
    const int room = widget.screen()->availableSize().width() * 3 / 4;
    return brokenTitle(title, 1 + widget.fontMetrics().horizontalAdvance(title) / room);
}

QString displayedLines(const PasswordQuestion &question)
{
    QStringList lines;
    for (const QString &sentence : sentencesOf(question))
        lines += displayText(sentence);
    return lines.join(u'\n');
}

} // namespace

PasswordDialog::PasswordDialog(const PasswordQuestion &question, bool canKeep, QWidget *parent)
    : QDialog(parent),
      m_user(new QLineEdit(question.user, this)),
      m_password(new QLineEdit(this)),
      m_keep(
          new QCheckBox(linesForScreen(tr("&Remember the password in the keyring"), *this), this))
{
    setObjectName(u"passwordDialog"_s);
    setWindowTitle(tr("Password"));
    m_user->setObjectName(u"passwordUser"_s);
    m_password->setObjectName(u"passwordField"_s);
    m_password->setEchoMode(QLineEdit::Password);
    m_keep->setObjectName(u"keepPassword"_s);
    m_keep->setVisible(canKeep);
    auto *text = new SentenceLabel(this);
    setLabelText(text, displayedLines(question));
    text->setObjectName(u"passwordText"_s);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(u"passwordOK"_s);
    ok->setDefault(true);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole)
        ->setObjectName(u"passwordCancel"_s);
    auto *content = new QWidget(this);
    auto *form = new QFormLayout(content);
    form->setContentsMargins(0, 0, 0, 0);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setWidget(form->rowCount(), QFormLayout::SpanningRole, text);
    addLabelledRow(form, tr("&User name:"), m_user);
    if (question.needsDomain) {
        m_domain = new QLineEdit(this);
        m_domain->setObjectName(u"passwordDomain"_s);
        addLabelledRow(form, tr("&Domain:"), m_domain);
    }
    addLabelledRow(form, tr("&Password:"), m_password);
    form->setWidget(form->rowCount(), QFormLayout::SpanningRole, m_keep);
    layOutSheet(*this, content, buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    (question.user.isEmpty() ? m_user : m_password)->setFocus();
}

Credentials PasswordDialog::takeAnswer()
{
    Credentials answer;
    answer.user = m_user->text();
    answer.domain = m_domain ? m_domain->text() : QString();
    answer.isToBeKept = !m_keep->isHidden() && m_keep->isChecked(); // the dialog is closed by now
    QString typed = m_password->text();
    answer.password = Secret::takeFrom(typed);
    m_password->clear();
    return answer;
}
