#pragma once

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

class DialogTabs;
class HostSession;
class PrintJob;

/// Keeps what a person sees of the window while the views of its panels are exchanged for others
/// of the same kind: nothing is painted until it goes, and then the same part of the same tab is
/// there, sections are folded as they were, and the same control has the focus.
class KeptView
{
public:
    /// The window's tabs show the parts of the job's printer.
    KeptView(QWidget &window, const DialogTabs &tabs, const PrintJob &job);
    ~KeptView();
    KeptView(const KeptView &) = delete;
    KeptView &operator=(const KeptView &) = delete;

    /// Folds and unfolds the sections of the views that are there by now, as a person does, and
    /// selects the same rows of their lists.
    void unfold(const HostSession &session) const;

private:
    QWidget &m_window;
    const DialogTabs &m_tabs;
    QPointer<QWidget> m_focus;    // outside of the part in front
    QString m_focusInPart;        // by name; null: it is outside
    int m_scrolled = 0;           // of the part in front
    QHash<QString, bool> m_folds; // open or not, by the panels' names
    QHash<QString, int> m_rows;   // by the lists' names
};
