#include "platform/toolkit/ModalSession.h"

#include "platform/toolkit/AlertObserver.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QEvent>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <vector>

namespace {

// The loop's own exit code is no answer: an application that quits sets it too.
struct Session
{
    QEventLoop loop;
    int code = kModalCancel;

    void stop(int answer)
    {
        code = answer;
        loop.quit();
    }
};

std::vector<Session *> &sessions()
{
    static std::vector<Session *> running;
    return running;
}

// Ends the session when its window is closed or Escape is pressed in it.
class ClosingWatch : public QObject
{
public:
    explicit ClosingWatch(Session &session) : m_session(session) {}

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool escape = event->type() == QEvent::KeyPress &&
                            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
        if (escape || event->type() == QEvent::Close)
            m_session.stop(kModalCancel);
        return escape;
    }

private:
    Session &m_session;
};

/// On a small screen pictures give way, so that the buttons are in reach.
void fitToScreen(QWidget &window)
{
    const QSize most = window.screen()->availableSize();
    const bool hasSize = window.testAttribute(Qt::WA_Resized);
    const QSize wanted = window.sizeHint().expandedTo(hasSize ? window.size() : QSize());
    const QSize lacking = (wanted - most).expandedTo(QSize(0, 0));
    if (lacking.isNull())
        return;
    for (auto *picture : window.findChildren<ImageView *>()) {
        QSize smaller = picture->maximumSize();
        smaller.scale((smaller - lacking).expandedTo(QSize(0, 0)), Qt::KeepAspectRatio);
        picture->setFixedSize(smaller);
    }
    window.resize(wanted.boundedTo(most));
}

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
    Session session;
    ClosingWatch closing(session);
    window->installEventFilter(&closing);
    QObject::connect(window, &QObject::destroyed, &session.loop, &QEventLoop::quit);
    window->setWindowModality(Qt::ApplicationModal);
    sessions().push_back(&session);
    const AlertObserver *observer = AlertObserver::alertObserver();
    if (observer && observer->keepsAlertsUnseen()) {
        ShownAlert alert = describe(window);
        alert.isUnseen = true;
        AlertObserver::tell(alert);
    } else {
        fitToScreen(*window);
        window->show();
        QTimer::singleShot(0, &session.loop, [window] { AlertObserver::tell(describe(window)); });
        session.loop.exec();
    }
    std::erase(sessions(), &session);
    return session.code;
}

void stopModalWithCode(int code)
{
    if (!sessions().empty())
        sessions().back()->stop(code);
}
