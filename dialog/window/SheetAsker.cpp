#include "dialog/window/SheetAsker.h"

#include "dialog/window/KeptPasswords.h"
#include "dialog/window/PasswordDialog.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

#include <condition_variable>
#include <mutex>

namespace {

constexpr std::chrono::milliseconds kAskerLook{50};

using Answer = std::optional<Credentials>;

/// A question that one thread waits for while people answer it on the main thread.
struct Sheet
{
    QPointer<PasswordDialog> dialog; // it and the next are the main thread's
    bool isGivenUp = false;
    std::mutex mutex; // guards what follows
    std::condition_variable change;
    bool isOver = false;
    Answer answer;
};

void end(Sheet &sheet, const Answer &answer)
{
    const std::lock_guard lock(sheet.mutex);
    if (!sheet.isOver)
        sheet.answer = answer;
    sheet.isOver = true;
    sheet.change.notify_one();
}

void open(const std::shared_ptr<Sheet> &sheet, QWidget *window, const PasswordQuestion &question,
          bool canKeep)
{
    if (!window || sheet->isGivenUp) {
        end(*sheet, std::nullopt);
        return;
    }
    auto *dialog = new PasswordDialog(question, canKeep, window);
    sheet->dialog = dialog;
    QObject::connect(dialog, &QDialog::finished, dialog, [sheet, dialog](int result) {
        end(*sheet, result == QDialog::Accepted ? Answer(dialog->takeAnswer()) : Answer());
        dialog->deleteLater();
    });
    QObject::connect(dialog, &QObject::destroyed, dialog, [sheet] { end(*sheet, std::nullopt); });
    dialog->open();
}

/// A kept password that was wrong is not tried again.
void findOrAsk(const std::shared_ptr<Sheet> &sheet, const QPointer<QWidget> &window,
               const PasswordQuestion &question)
{
    findKept(question, [=](bool hasKeyring, const Answer &kept) {
        if (kept && !question.isAgain)
            end(*sheet, kept);
        else
            open(sheet, window, question, hasKeyring);
    });
}

template <typename Action> void onMainThread(const Action &action)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, action, Qt::QueuedConnection);
}

class SheetAsker : public PasswordAsker
{
public:
    explicit SheetAsker(QWidget &window) : m_window(&window) {}

    Answer ask(const PasswordQuestion &question, CallGuard &guard) override
    {
        const auto sheet = std::make_shared<Sheet>();
        onMainThread([sheet, window = m_window, question] { findOrAsk(sheet, window, question); });
        std::unique_lock lock(sheet->mutex);
        while (!sheet->change.wait_for(lock, kAskerLook, [&] { return sheet->isOver; })) {
            guard.stampSignOfLife(); // people take their time
            if (guard.isCancelled()) {
                onMainThread([sheet] {
                    sheet->isGivenUp = true;
                    if (sheet->dialog)
                        sheet->dialog->reject();
                });
                return std::nullopt;
            }
        }
        return sheet->answer;
    }

    void keep(const PasswordQuestion &question, const Credentials &right) override
    {
        if (right.isToBeKept)
            onMainThread([question, right] { keepInKeyring(question, right); });
    }

private:
    const QPointer<QWidget> m_window;
};

} // namespace

std::shared_ptr<PasswordAsker> newSheetAsker(QWidget &window)
{
    return std::make_shared<SheetAsker>(window);
}
