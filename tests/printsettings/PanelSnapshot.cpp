#include "tests/printsettings/PanelSnapshot.h"

#include "dialog/host/PPDMarks.h"

using namespace Qt::StringLiterals;

namespace {

QVariantMap marksOf(const TestedPanel &panel, PanelSession &session)
{
    QVariantMap marks;
    for (const QString &keyword : panel.supportedPPDOptionKeys().value_or(QStringList()))
        marks.insert(keyword, session.marked(keyword));
    return marks;
}

void compare(QStringList &differences, const QVariantMap &before, const QVariantMap &after,
             const QString &what)
{
    for (auto entry = after.cbegin(); entry != after.cend(); ++entry) {
        if (before.value(entry.key()) != entry.value())
            differences << what + u' ' + entry.key() + u": "_s + entry.value().toString();
    }
}

template <typename State>
void compareControls(QStringList &differences, const std::vector<State> &before,
                     const std::vector<State> &after)
{
    for (std::size_t index = 0; index < before.size(); ++index) {
        if (before[index].words != after[index].words)
            differences << before[index].name + u": "_s + after[index].words;
    }
}

} // namespace

PanelControls::PanelControls(const TestedPanel &panel)
{
    for (const QString &keyword : panel.supportedPPDOptionKeys().value_or(QStringList())) {
        QWidget *control = panel.determineUI(keyword);
        if (auto *popup = qobject_cast<PopUpButton *>(control))
            popups.push_back(popup);
        else if (auto *box = qobject_cast<QAbstractButton *>(control))
            boxes.push_back(box);
    }
}

PanelSnapshot::PanelSnapshot(const TestedPanel &panel, PanelSession &session,
                             const PanelControls &controls)
    : m_flags(panel.imageModeFlag()), m_pending(panel.outputBin()), m_marks(marksOf(panel, session))
{
    for (const PopUpButton *popup : controls.popups)
        m_popups.push_back(stateOfPopUp(*popup));
    for (const QAbstractButton *box : controls.boxes)
        m_boxes.push_back({box->objectName(), stateOf(box), box->isChecked(), box->isEnabled()});
}

PanelSnapshot::PopUp PanelSnapshot::stateOfPopUp(const PopUpButton &popup)
{
    PopUp state{popup.objectName(),
                {},
                {},
                itemsOf(&popup) + (popup.isEnabled() ? u""_s : u" off"_s),
                popup.currentIndex(),
                popup.isEnabled()};
    for (int index = 0; index < popup.count(); ++index) {
        state.items.push_back({popup.itemText(index), popup.representedObject(index)});
        state.itemsEnabled.push_back(popup.isItemEnabled(index));
    }
    return state;
}

void PanelSnapshot::restorePopUp(const PopUp &saved, PopUpButton &popup)
{
    if (stateOfPopUp(popup).words == saved.words)
        return;
    popup.setItems(saved.items);
    for (int index = 0; index < popup.count(); ++index)
        popup.setItemEnabled(index, saved.itemsEnabled[static_cast<std::size_t>(index)]);
    popup.setCurrentIndex(saved.selected);
    popup.setEnabled(saved.enabled);
}

void PanelSnapshot::restore(TestedPanel &panel, PanelSession &session,
                            const PanelControls &controls) const
{
    for (auto mark = m_marks.cbegin(); mark != m_marks.cend(); ++mark) {
        if (session.marked(mark.key()) != mark.value().toString())
            forceChoice(session.ppd(), mark.key(), mark.value().toString());
    }
    panel.setOutputBin(m_pending);
    panel.setFlag(static_cast<ImageModeFlag>(-1), false);
    panel.setFlag(static_cast<ImageModeFlag>(m_flags), true);
    for (std::size_t index = 0; index < m_popups.size(); ++index)
        restorePopUp(m_popups[index], *controls.popups[index]);
    for (std::size_t index = 0; index < m_boxes.size(); ++index) {
        controls.boxes[index]->setChecked(m_boxes[index].checked);
        controls.boxes[index]->setEnabled(m_boxes[index].enabled);
    }
}

QStringList PanelSnapshot::differences(const PanelSnapshot &later) const
{
    QStringList differences;
    if (m_flags != later.m_flags)
        differences << u"flags: %1"_s.arg(later.m_flags, 0, 16);
    compare(differences, m_pending, later.m_pending, u"pending"_s);
    compare(differences, m_marks, later.m_marks, u"marked"_s);
    compareControls(differences, m_popups, later.m_popups);
    compareControls(differences, m_boxes, later.m_boxes);
    return differences;
}
