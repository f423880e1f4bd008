#include "platform/toolkit/Alert.h"

#include "platform/toolkit/AlertBox.h"
#include "platform/toolkit/AlertObserver.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

QMessageBox::Icon iconOf(AlertStyle style)
{
    switch (style) {
    case AlertStyle::Informational:
        return QMessageBox::Information;
    case AlertStyle::Warning:
        return QMessageBox::Warning;
    case AlertStyle::Critical:
        return QMessageBox::Critical;
    case AlertStyle::None:
        break;
    }
    return QMessageBox::NoIcon;
}

void setInformativeText(QMessageBox &box, const QString &text)
{
    if (text.isEmpty())
        return;
    box.setInformativeText(QStringLiteral(" "));
    // The label of the informative text guesses at rich text whatever format the box has.
    const auto labels = box.findChildren<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"));
    for (QLabel *label : labels)
        setLabelText(label, text);
}

void addButtons(QMessageBox &box, const QStringList &titles, int defaultButton)
{
    for (int index = 0; index < titles.size(); ++index) {
        const auto role = index == 0 ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
        QPushButton *button = box.addButton(withoutMnemonic(titles[index]), role);
        if (index == defaultButton)
            box.setDefaultButton(button);
        if (index + 1 == titles.size())
            box.setEscapeButton(button);
    }
}

std::unique_ptr<AlertBox> newBox(const AlertContent &content)
{
    auto box = std::make_unique<AlertBox>(keyWindow());
    box->setIcon(iconOf(content.style));
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(QApplication::applicationDisplayName());
    box->setText(content.text);
    setInformativeText(*box, content.informative);
    addButtons(*box, content.buttons, content.defaultButton);
    if (content.suppression)
        box->setCheckBox(new QCheckBox(withoutMnemonic(content.suppressionTitle)));
    return box;
}

// The buttons as the content lists them; the box itself orders them as the desktop wants.
QList<QPointer<QAbstractButton>> buttonsOf(const QMessageBox &box, const AlertContent &content)
{
    QList<QPointer<QAbstractButton>> buttons;
    const auto all = box.buttons();
    for (const QString &title : content.buttons) {
        for (QAbstractButton *button : all) {
            if (buttonTitle(button) == title && !buttons.contains(button)) {
                buttons << button;
                break;
            }
        }
    }
    return buttons;
}

bool areUnseen()
{
    const AlertObserver *observer = AlertObserver::alertObserver();
    return observer && observer->keepsAlertsUnseen();
}

ShownAlert describe(QMessageBox &box, const AlertContent &content, ShownAlert::Kind kind)
{
    return {kind, content, &box, buttonsOf(box, content), box.checkBox(), areUnseen()};
}

int answerOfDismissal(const AlertContent &content)
{
    return std::max(static_cast<int>(content.buttons.size()) - 1, 0);
}

AlertResult resultOf(const QMessageBox &box, const AlertContent &content)
{
    // A box that is closed has no clicked button yet when it says that it has finished.
    AlertResult result{answerOfDismissal(content), false};
    const auto buttons = buttonsOf(box, content);
    for (int index = 0; index < buttons.size(); ++index) {
        if (buttons[index] == box.clickedButton())
            result.button = index;
    }
    result.suppressed = box.checkBox() && box.checkBox()->isChecked();
    return result;
}

} // namespace

AlertResult runAlert(const AlertContent &content)
{
    // The box dies with the key window, which may go while the alert is up.
    const QPointer<QMessageBox> box = newBox(content).release();
    box->setWindowModality(Qt::ApplicationModal);
    const auto tell = [box, &content] {
        AlertObserver::tell(describe(*box, content, ShownAlert::Kind::Modal));
    };
    if (areUnseen()) {
        tell();
    } else {
        QTimer::singleShot(0, box, tell);
        box->exec();
    }
    if (!box)
        return {answerOfDismissal(content), false};
    AlertResult result = resultOf(*box, content);
    delete box;
    return result;
}

void beginAlertSheet(const AlertContent &content, QObject *context,
                     std::function<void(const AlertResult &)> didEnd)
{
    QMessageBox *box = newBox(content).release();
    box->setWindowModality(Qt::WindowModal);
    QObject::connect(
        box, &QMessageBox::finished, context,
        [box, content, didEnd = std::move(didEnd)] { didEnd(resultOf(*box, content)); });
    QObject::connect(box, &QMessageBox::finished, box, &QObject::deleteLater);
    if (!areUnseen())
        box->show();
    AlertObserver::tell(describe(*box, content, ShownAlert::Kind::Sheet));
}
