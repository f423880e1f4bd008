#pragma once

#include "dialog/host/HostSession.h"
#include "dialog/host/SessionObserver.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QString>

/// Notes, while it lives, whether the host has refused a panel the choice: its last answer counts.
/// What it answers a panel's rules of other choices does not.
class RefusalWatch : public SessionObserver
{
public:
    RefusalWatch(HostSession &session, const QString &keyword, const QString &choice)
        : m_session(session), m_keyword(keyword), m_choice(choice)
    {
        m_session.addObserver(this);
    }
    ~RefusalWatch() override { m_session.removeObserver(this); }
    RefusalWatch(const RefusalWatch &) = delete;
    RefusalWatch &operator=(const RefusalWatch &) = delete;

    void didAnswer(const HostCallback::Call &call) override
    {
        using enum HostCallback::Call::Kind;
        if (call.kind == WillChangePPDOptionKeyValue && call.keyword == m_keyword &&
            isSameName(call.choice, m_choice))
            m_isRefused = !call.accepted;
    }

    bool isRefused() const { return m_isRefused; }

private:
    HostSession &m_session;
    const QString m_keyword;
    const QString m_choice;
    bool m_isRefused = false;
};
