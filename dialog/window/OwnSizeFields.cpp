#include "dialog/window/OwnSizeFields.h"

#include "dialog/job/PaperMemory.h"
#include "dialog/window/FieldWidth.h"
#include "dialog/window/FlowLayout.h"
#include "platform/toolkit/AccessibleName.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

OwnSizeFields::OwnSizeFields(QWidget *parent)
    : QWidget(parent),
      m_name(new QLineEdit(this)),
      m_keep(newButton(u"keepSizeButton"_s, tr("&Keep"))),
      m_rename(newButton(u"renameSizeButton"_s, tr("Re&name"))),
      m_remove(newButton(u"removeSizeButton"_s, tr("Remo&ve")))
{
    m_name->setObjectName(u"sizeNameField"_s);
    m_name->setPlaceholderText(tr("Name of this size"));
    m_name->setMinimumWidth(widthForPlaceholder(*m_name));
    giveAccessibleName(m_name, tr("Name of this size"));
    auto *row = new FlowLayout(this);
    row->addWidget(m_name);
    for (QPushButton *button : {m_keep, m_rename, m_remove})
        row->addWidget(button);
    connect(m_name, &QLineEdit::textChanged, this, &OwnSizeFields::judge);
    connect(m_keep, &QPushButton::clicked, this,
            [this] { Q_EMIT kept(ownSizeName(m_name->text())); });
    connect(m_rename, &QPushButton::clicked, this,
            [this] { Q_EMIT renamed(ownSizeName(m_name->text())); });
    connect(m_remove, &QPushButton::clicked, this, &OwnSizeFields::removed);
    judge();
}

QPushButton *OwnSizeFields::newButton(const QString &name, const QString &title)
{
    auto *button = new QPushButton(title, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void OwnSizeFields::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_keep->click(); // nothing while it is disabled
    else
        QWidget::keyPressEvent(event);
}

void OwnSizeFields::setKept(const QString &name, bool isAcceptable)
{
    m_isAcceptable = isAcceptable;
    if (m_kept != name) {
        m_kept = name;
        m_name->clear();
        m_name->insert(name);
    }
    judge();
}

void OwnSizeFields::judge()
{
    const QString name = ownSizeName(m_name->text());
    const bool isOther = !name.isEmpty() && name != m_kept;
    m_keep->setEnabled(m_isAcceptable && isOther);
    m_rename->setEnabled(!m_kept.isEmpty() && isOther);
    m_remove->setEnabled(!m_kept.isEmpty());
}
