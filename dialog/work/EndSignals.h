#pragma once

#include <QtCore/QObject>

#include <array>
#include <csignal>
#include <functional>
#include <memory>

class QSocketNotifier;

/// Makes an event of the signals that ask a program to end (HUP, INT, TERM), so that it can leave
/// things in order. The first one runs the action in the event loop of the object's thread; another
/// one ends the program at once, as without this object. A signal that was ignored stays ignored.
/// One object at a time; its end brings the former handlers back.
class EndSignals : public QObject
{
public:
    explicit EndSignals(std::function<void()> action = {});
    ~EndSignals() override;

    /// What the first signal does from now on; at once, when it has come already.
    void setAction(std::function<void()> action);

    /// Whether a signal has come, told before any event is.
    static bool haveCome() { return first() != 0; }

    /// The number of the first signal that has come; 0: none.
    static int first();

private:
    void act();

    static constexpr std::array kSignals{SIGHUP, SIGINT, SIGTERM};

    std::function<void()> m_action;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::array<struct sigaction, kSignals.size()> m_former{};
};

/// From now on those signals do nothing: what the program was to do is done, and its exit status
/// says how.
void ignoreEndSignals();
