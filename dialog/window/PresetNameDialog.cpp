#include "dialog/window/PresetNameDialog.h"

#include "dialog/printing/Presets.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNameWidth = 320;

} // namespace

PresetNameDialog::PresetNameDialog(const QString &title, const QStringList &taken, bool mayReplace,
                                   QWidget *parent)
    : QDialog(parent),
      m_taken(taken),
      m_mayReplace(mayReplace),
      m_name(new QLineEdit(this)),
      m_validation(newPlainLabel(QString(), this))
{
    setObjectName(u"presetNameDialog"_s);
    setWindowTitle(title);
    m_name->setObjectName(u"presetName"_s);
    m_name->setMinimumWidth(kNameWidth);
    m_validation->setObjectName(u"presetNameValidation"_s);
    m_validation->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(tr("Save"), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName(u"presetNameOK"_s);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto *form = new QFormLayout(this);
    addLabelledRow(form, tr("&Name:"), m_name);
    form->setWidget(form->rowCount(), QFormLayout::SpanningRole, m_validation);
    form->setWidget(form->rowCount(), QFormLayout::SpanningRole, buttons);
    connect(m_name, &QLineEdit::textEdited, this, &PresetNameDialog::judge);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    judge();
}

void PresetNameDialog::setName(const QString &name)
{
    m_name->setText(name);
    m_name->selectAll();
    judge();
}

QString PresetNameDialog::name() const
{
    return m_name->text().trimmed();
}

void PresetNameDialog::judge()
{
    const bool isTaken = m_taken.contains(name(), Qt::CaseInsensitive);
    QString fault = presetNameFault(name());
    if (fault.isNull() && isTaken && !m_mayReplace)
        fault = tr("There is a preset of this name already.");
    m_ok->setEnabled(fault.isNull());
    setLabelText(m_validation, fault.isNull() && isTaken
                                   ? tr("This replaces the preset of the same name.")
                                   : fault);
    makeRoom();
}

/// What is told while somebody types can need more lines than what was told before.
void PresetNameDialog::makeRoom()
{
    const int wanted = layout()->totalHeightForWidth(width());
    if (isVisible() && wanted > height())
        resize(width(), wanted);
}
