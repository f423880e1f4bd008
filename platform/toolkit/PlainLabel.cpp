#include "platform/toolkit/PlainLabel.h"

#include "platform/toolkit/CaptionLabel.h"

#include <QtGui/QTextDocument>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

QLabel *newPlainLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    setLabelText(label, text);
    return label;
}

void setLabelText(QLabel *label, const QString &text)
{
    label->setTextFormat(Qt::PlainText);
    if (auto *caption = qobject_cast<CaptionLabel *>(label))
        caption->prepareFor(text);
    label->setText(text);
}

void addLabelledRow(QFormLayout *form, const QString &text, QWidget *field)
{
    QLabel *label = newPlainLabel(text, form->parentWidget());
    label->setBuddy(field);
    form->addRow(label, field);
}

QString toolTipMarkup(const QString &text)
{
    // There is no plain tool tip, so it gets markup that says what the text says.
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

void showToolTip(const QPoint &at, const QString &text, QWidget *owner)
{
    QToolTip::showText(at, toolTipMarkup(text), owner);
}
