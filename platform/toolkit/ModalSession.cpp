#include "platform/toolkit/ModalSession.h"

#include "platform/toolkit/AlertObserver.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QEvent>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <vector>

namespace {

std::vector<QEventLoop *> &sessions()
{
    static std::vector<QEventLoop *> running;
    return running;
}

// Ends the session when its window is closed or Escape is pressed in it.
class ClosingWatch : public QObject
{
public:
    explicit ClosingWatch(QEventLoop &session) : m_session(session) {}

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool escape = event->type() == QEvent::KeyPress &&
                            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
        if (escape || event->type() == QEvent::Close)
            m_session.exit(kModalCancel);
        return escape;
    }

private:
    QEventLoop &m_session;
};

ShownAlert describe(QWidget *window)
{
    ShownAlert alert;
    alert.kind = ShownAlert::Kind::Window;
    alert.window = window;
    alert.content.style = AlertStyle::None;
    alert.content.title = window->windowTitle();
    QStringList texts;
    for (const QLabel *label : window->findChildren<QLabel *>())
        texts << label->text();
    alert.content.text = texts.value(0);
    alert.content.informative = texts.value(1);
    for (QPushButton *button : window->findChildren<QPushButton *>()) {
        alert.buttons << button;
        alert.content.buttons << buttonTitle(button);
    }
    alert.suppressionBox = window->findChild<QCheckBox *>();
    alert.content.suppression = alert.suppressionBox && !alert.suppressionBox->isHidden();
    return alert;
}

} // namespace

int runModalForWindow(QWidget *window)
{
    if (!window)
        return kModalCancel;
    QEventLoop session;
    ClosingWatch closing(session);
    window->installEventFilter(&closing);
    window->setWindowModality(Qt::ApplicationModal);
    window->show();
    if (AlertObserver *observer = AlertObserver::alertObserver())
        QTimer::singleShot(0, window, [&] { observer->alertShown(describe(window)); });
    sessions().push_back(&session);
    const int code = session.exec();
    std::erase(sessions(), &session);
    window->removeEventFilter(&closing);
    return code;
}

void stopModalWithCode(int code)
{
    if (!sessions().empty())
        sessions().back()->exit(code);
}
