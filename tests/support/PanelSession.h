#pragma once

#include "dialog/host/HostCallback.h"
#include "tests/support/AlertAnswers.h"
#include "tests/support/PPDSource.h"
#include "tests/support/SessionLog.h"

#include <QtCore/QSizeF>

#include <memory>

class Bundle;

/// A dialog session without the dialog: a PPD, the real host object, the real bundle with every
/// text as its key, alert memory and languages of its own, and answers to alerts. The panel is the
/// test's.
class PanelSession
{
public:
    /// What the ticket, the page format and the bundle hold before a panel is created.
    explicit PanelSession(PPDHandle ppd);
    ~PanelSession();
    PanelSession(const PanelSession &) = delete;
    PanelSession &operator=(const PanelSession &) = delete;

    /// Replaces the bundle that a panel which is created from now on finds.
    void setBundle(std::shared_ptr<Bundle> bundle);
    Bundle &bundle() { return *m_bundle; }

    ppd_file_t *ppd() { return m_ppd.get(); }
    const std::shared_ptr<HostCallback> &host() const { return m_host; }
    SessionLog &log() { return m_log; }
    AlertAnswers &alerts() { return m_alerts; }

    /// Puts the paper into the page format. `setPaper` tells nobody; `changePaper` posts the
    /// paper-change notification. A size that is left out is that of A4.
    void setPaper(const QString &name, const QString &ppdName, QSizeF size = {595, 842});
    void changePaper(const QString &name, const QString &ppdName, QSizeF size = {595, 842});
    /// One of the PPD's own papers.
    void changePaper(const QString &name) { changePaper(name, name); }

    /// Marks a choice as the rest of the dialog does, and for `Duplex` posts its notification.
    void mark(const QString &keyword, const QString &choice);
    QString marked(const QString &keyword);

private:
    PPDHandle m_ppd;
    std::shared_ptr<HostCallback> m_host;
    std::shared_ptr<Bundle> m_bundle;
    SessionLog m_log;
    AlertAnswers m_alerts;
};

/// Picks the item with the choice through the pop-up's user signal. Fails the test when the pop-up
/// is hidden or disabled, or has no such enabled item.
void pickChoice(QWidget *popup, const QString &choice);

/// Sets a check box as a user's click does.
void clickBox(QWidget *box, bool checked);
