#pragma once

#include "dialog/replay/ReplayEvent.h"
#include "platform/toolkit/AlertObserver.h"

#include <QtCore/QJsonArray>

#include <vector>

/// Answers alerts in a person's place, by pressing their real buttons, and notes what they said.
/// While it lives it is the process's alert observer.
///
/// Alerts that block are answered as soon as they are on screen; a sheet waits for answerSheets(),
/// as a person gets to it when the pick that raised it is done. Either may be kept from the screen.
class AlertAnswerer : public AlertObserver
{
public:
    enum class Alerts { OnScreen, Unseen };

    explicit AlertAnswerer(Alerts alerts = Alerts::OnScreen);
    ~AlertAnswerer() override;
    AlertAnswerer(const AlertAnswerer &) = delete;
    AlertAnswerer &operator=(const AlertAnswerer &) = delete;

    /// The answers for the alerts to come, in order; those that were left over are dropped.
    void setAnswers(const QList<ReplayAnswer> &answers);

    /// Answers the sheets that wait, and those that this raises, until none is left.
    void answerSheets();

    /// The alerts since the last call, in the order in which they were raised. Call it when every
    /// sheet has been answered.
    QJsonArray takeReports();

    /// The same, where nobody wants to know.
    void forgetReports() { m_raised.clear(); }

    void alertShown(const ShownAlert &alert) override;
    bool keepsAlertsUnseen() const override { return m_alerts == Alerts::Unseen; }

private:
    struct Raised
    {
        ShownAlert alert;
        ReplayAnswer wanted;
        int answer = 0;
        bool suppressed = false;
        bool answered = false;
    };

    void answer(std::size_t index);
    /// The wanted button; the first one where the alert has no such button.
    static int buttonFor(const Raised &raised);
    static QJsonObject report(const Raised &raised);

    const Alerts m_alerts;
    QList<ReplayAnswer> m_answers;
    std::vector<Raised> m_raised;
    AlertObserver *m_former;
};
