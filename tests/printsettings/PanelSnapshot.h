#pragma once

#include "tests/printsettings/PrintPanel.h"

#include <vector>

/// The controls of the panel's keywords, found once.
struct PanelControls
{
    explicit PanelControls(const TestedPanel &panel);

    std::vector<PopUpButton *> popups;
    std::vector<QAbstractButton *> boxes;
};

/// The whole state of a shown panel and of its PPD's marks: what a test can compare and bring back,
/// so that thousands of picks can start from the same state without a new panel each time.
class PanelSnapshot
{
public:
    PanelSnapshot(const TestedPanel &panel, PanelSession &session, const PanelControls &controls);

    /// Puts everything back as it was.
    void restore(TestedPanel &panel, PanelSession &session, const PanelControls &controls) const;

    /// What is different in `later`, as "WHAT: HOW IT IS THEN"; empty when nothing is.
    QStringList differences(const PanelSnapshot &later) const;

    const QVariantMap &pending() const { return m_pending; }
    const QVariantMap &marks() const { return m_marks; }

private:
    struct PopUp
    {
        QString name;
        std::vector<PopUpButton::Item> items;
        std::vector<bool> itemsEnabled;
        QString words;
        int selected;
        bool enabled;
    };
    struct Box
    {
        QString name;
        QString words;
        bool checked;
        bool enabled;
    };

    static PopUp stateOfPopUp(const PopUpButton &popup);
    static void restorePopUp(const PopUp &saved, PopUpButton &popup);

    std::int32_t m_flags;
    QVariantMap m_pending;
    QVariantMap m_marks;
    std::vector<PopUp> m_popups;
    std::vector<Box> m_boxes;
};
