#include "dialog/window/DialogWindow.h"
#include "dialog/window/PasswordDialog.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds kLookInterval{50};

} // namespace

void DialogWindow::done(int result)
{
    for (PasswordDialog *question : findChildren<PasswordDialog *>())
        question->reject();
    if (m_state == State::Sending) {
        m_controller.cancel();
        return;
    }
    m_controller.stopReading();
    NotificationCenter::defaultCenter().post(QLatin1String(kWindowWillCloseNotification),
                                             static_cast<QWidget *>(this));
    closePrinter();
    setKeyWindow(nullptr);
    if (m_sent)
        Q_EMIT jobSent(m_wishes.server, *m_sent);
    QDialog::done(result);
}

/// Not while something runs an event loop of its own, an alert of a panel say: it would find its
/// dialog gone.
void DialogWindow::end()
{
    m_isEnding = true;
    if (QThread::currentThread()->loopLevel() > 1) {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
        QTimer::singleShot(kLookInterval, this, &DialogWindow::end);
        return;
    }
    if (isVisible())
        reject();
}
