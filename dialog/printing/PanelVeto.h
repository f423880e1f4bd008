#pragma once

#include "dialog/host/SessionObserver.h"
#include "dialog/work/Result.h"

#include <QtCore/QMap>

class HostSession;

/// Asks the session's panels whether the job may be printed. After a veto the sentence is null when
/// an alert has told the user why, else one that says no more than that.
Result<> askPanels(HostSession &session);

/// Knows the panels of a session that could not save their values: a job without them would not be
/// what was shown.
class UnsavedPanels : public SessionObserver
{
public:
    /// Has those panels try once more. A fault with the words of the first that cannot.
    Result<> saveAgain(HostSession &session) const;

    void didPerform(PanelOperation operation, const HostPanel &panel) override;
    void didFail(PanelOperation operation, const HostPanel &panel,
                 const QString &sentence) override;
    void willClose() override { m_sentences.clear(); }

private:
    QMap<QString, QString> m_sentences; ///< by the names of the panels
};
